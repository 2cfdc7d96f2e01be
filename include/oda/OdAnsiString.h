#pragma once

#include "OdaCommon.h"

#include <string>
#include <string_view>

/// Narrow text; UTF-8 where it holds more than ASCII.
class ODRX_EXPORT OdAnsiString
{
public:
    OdAnsiString() = default;
    OdAnsiString(const char* text) : m_text(text ? text : "") {}
    explicit OdAnsiString(std::string_view text) : m_text(text) {}

    const char* c_str() const { return m_text.c_str(); }
    std::string_view view() const { return m_text; }
    bool isEmpty() const { return m_text.empty(); }
    int getLength() const { return static_cast<int>(m_text.size()); }
    /// Replaces every `from` by `to`; returns how many there were.
    int replace(char from, char to);

private:
    std::string m_text;
};

inline bool operator==(const OdAnsiString& a, const OdAnsiString& b)
{
    return a.view() == b.view();
}
inline bool operator!=(const OdAnsiString& a, const OdAnsiString& b)
{
    return a.view() != b.view();
}

class OdString;
/// The text in UTF-8.
ODRX_EXPORT OdAnsiString OdStringToUtf8String(const OdString& text);
/// Wide text of UTF-8; bytes that are no UTF-8 become U+FFFD.
ODRX_EXPORT OdString Utf8StringToOdString(const OdAnsiString& text);
