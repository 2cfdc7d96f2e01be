#include "OdError.h"

#include "OdAnsiString.h"
#include "RxObject.h"

OdError::OdError(OdResult code, const OdString& description)
    : m_code(code),
      m_description(description),
      m_what(OdStringToUtf8String(description).c_str())
{
}

OdError::~OdError() = default;

const char* OdError::what() const noexcept
{
    return m_what.c_str();
}

OdError_NotThatKindOfClass::OdError_NotThatKindOfClass(const OdRxClass* from, const OdRxClass* to)
    : OdError(eNotThatKindOfClass, (from ? from->name() : OdString(L"null")) +
                                       OdString(L" is no ") + (to ? to->name() : OdString(L"null")))
{
}

OdError_NotThatKindOfClass::~OdError_NotThatKindOfClass() = default;

OdError_InvalidIndex::OdError_InvalidIndex() : OdError(eInvalidIndex, L"Index outside the array") {}

OdError_InvalidIndex::~OdError_InvalidIndex() = default;
