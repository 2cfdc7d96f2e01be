#pragma once

#include "OdString.h"

#include <exception>

enum OdResult {
    eOk = 0,
    eOutOfMemory,
    eInvalidIndex,
    eNotThatKindOfClass,
    eCannotLoadModule,
    eInvalidInput
};

/// The base of all exceptions that the platform throws.
class ODRX_EXPORT OdError : public std::exception
{
public:
    explicit OdError(OdResult code, const OdString& description = OdString());
    ~OdError() override;

    OdResult code() const { return m_code; }
    const OdString& description() const { return m_description; }
    const char* what() const noexcept override;

private:
    OdResult m_code;
    OdString m_description;
    std::string m_what;
};

class OdRxClass;

/// Thrown when an object is used as a class that it does not belong to.
class ODRX_EXPORT OdError_NotThatKindOfClass : public OdError
{
public:
    OdError_NotThatKindOfClass(const OdRxClass* from, const OdRxClass* to);
    ~OdError_NotThatKindOfClass() override;
};

/// Thrown when an index lies outside its array.
class ODRX_EXPORT OdError_InvalidIndex : public OdError
{
public:
    OdError_InvalidIndex();
    ~OdError_InvalidIndex() override;
};
