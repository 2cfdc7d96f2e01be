#include "OdString.h"
#include "OdAnsiString.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void appendUtf8(std::string& out, char32_t c)
{
    if (c > 0x10FFFF || (c >= 0xD800 && c < 0xE000))
        c = kReplacement;
    const auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((c >> shift) & 0x3F)); };
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        tail(0);
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        tail(6);
        tail(0);
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

/// Decodes the character at the front of `bytes` and takes it off; a wrong byte gives U+FFFD.
char32_t takeUtf8(std::string_view& bytes)
{
    const auto lead = static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(1);
    if (lead < 0x80)
        return lead;
    const int length = lead >= 0xF0 && lead < 0xF5 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : 0;
    if (length == 0 || lead >= 0xF5 || bytes.size() < static_cast<std::size_t>(length))
        return kReplacement;
    char32_t c = lead & (0x3F >> length);
    for (int i = 0; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]);
        if ((byte & 0xC0) != 0x80)
            return kReplacement;
        c = (c << 6) | (byte & 0x3F);
    }
    constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
    if (c < kSmallest[length] || c > 0x10FFFF || (c >= 0xD800 && c < 0xE000))
        return kReplacement;
    bytes.remove_prefix(static_cast<std::size_t>(length));
    return c;
}

} // namespace

OdString::OdString(const wchar_t* text) : OdString(std::wstring_view(text ? text : L"")) {}

OdString::OdString(std::wstring_view text)
    : m_text(text.empty() ? nullptr : std::make_shared<const std::wstring>(text))
{
}

const wchar_t* OdString::c_str() const
{
    return m_text ? m_text->c_str() : L"";
}

std::wstring_view OdString::view() const
{
    return m_text ? std::wstring_view(*m_text) : std::wstring_view();
}

int OdString::getLength() const
{
    return static_cast<int>(view().size());
}

int OdString::compare(const OdString& other) const
{
    return m_text == other.m_text ? 0 : view().compare(other.view());
}

int OdString::iCompare(const OdString& other) const
{
    return m_text == other.m_text ? 0 : wcscasecmp(c_str(), other.c_str());
}

OdString OdString::operator+(const OdString& other) const
{
    return OdString(std::wstring(view()).append(other.view()));
}

int OdAnsiString::replace(char from, char to)
{
    const auto count = std::count(m_text.begin(), m_text.end(), from);
    std::replace(m_text.begin(), m_text.end(), from, to);
    return static_cast<int>(count);
}

OdAnsiString OdStringToUtf8String(const OdString& text)
{
    std::string out;
    out.reserve(text.view().size());
    for (const wchar_t c : text.view())
        appendUtf8(out, static_cast<char32_t>(c));
    return OdAnsiString(out);
}

OdString Utf8StringToOdString(const OdAnsiString& text)
{
    std::wstring out;
    out.reserve(text.view().size());
    for (std::string_view rest = text.view(); !rest.empty();)
        out += static_cast<wchar_t>(takeUtf8(rest));
    return OdString(out);
}
