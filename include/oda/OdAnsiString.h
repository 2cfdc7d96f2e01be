#pragma once

#include "OdaCommon.h"

#include <string>

/// Narrow text. Text beyond ASCII is encoded as UTF-8.
class ODRX_EXPORT OdAnsiString
{
public:
    OdAnsiString() = default;
    OdAnsiString(const char* text) : m_text(text ? text : "") {}
    OdAnsiString(const char* text, int length) : m_text(text, static_cast<std::size_t>(length)) {}

    const char* c_str() const { return m_text.c_str(); }
    bool isEmpty() const { return m_text.empty(); }
    int getLength() const { return static_cast<int>(m_text.size()); }

    friend bool operator==(const OdAnsiString& a, const OdAnsiString& b)
    {
        return a.m_text == b.m_text;
    }
    friend bool operator!=(const OdAnsiString& a, const OdAnsiString& b) { return !(a == b); }

private:
    std::string m_text;
};

class OdString;
/// Converts wide text to UTF-8.
ODRX_EXPORT OdAnsiString OdStringToUtf8String(const OdString& text);
/// Converts UTF-8 to wide text. Bytes that are not valid UTF-8 become U+FFFD.
ODRX_EXPORT OdString Utf8StringToOdString(const OdAnsiString& text);
