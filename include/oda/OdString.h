#pragma once

#include "OdaCommon.h"

#include <memory>
#include <string>

/// Immutable wide text. Copies share the characters, so copying only increases a reference count.
class ODRX_EXPORT OdString
{
public:
    OdString() = default;
    OdString(const wchar_t* text);
    OdString(const wchar_t* text, int length);

    const wchar_t* c_str() const;
    bool isEmpty() const { return !m_text; }
    int getLength() const;

    /// Compares by character codes. Returns a value below, equal to or above zero.
    int compare(const OdString& other) const;
    /// Compares like `compare`, but ignores letter case.
    int iCompare(const OdString& other) const;

    OdString operator+(const OdString& other) const;

private:
    std::shared_ptr<const std::wstring> m_text; ///< Null for the empty text.
};

inline bool operator==(const OdString& a, const OdString& b)
{
    return a.compare(b) == 0;
}
inline bool operator!=(const OdString& a, const OdString& b)
{
    return a.compare(b) != 0;
}
inline bool operator<(const OdString& a, const OdString& b)
{
    return a.compare(b) < 0;
}
