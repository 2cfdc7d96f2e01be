#include "OdString.h"
#include "OdAnsiString.h"
#include "platformextras.h"

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

/// Decodes and removes the first character of `bytes`. An invalid byte gives U+FFFD.
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

OdString::OdString(const wchar_t* text)
    : OdString(text, text ? static_cast<int>(std::wcslen(text)) : 0)
{
}

OdString::OdString(const wchar_t* text, int length)
    : m_text(length > 0
                 ? std::make_shared<const std::wstring>(text, static_cast<std::size_t>(length))
                 : nullptr)
{
}

const wchar_t* OdString::c_str() const
{
    return m_text ? m_text->c_str() : L"";
}

int OdString::getLength() const
{
    return m_text ? static_cast<int>(m_text->size()) : 0;
}

int OdString::compare(const OdString& other) const
{
    return m_text == other.m_text ? 0 : viewOf(*this).compare(viewOf(other));
}

int OdString::iCompare(const OdString& other) const
{
    return m_text == other.m_text ? 0 : wcscasecmp(c_str(), other.c_str());
}

OdString OdString::operator+(const OdString& other) const
{
    const std::wstring both = std::wstring(viewOf(*this)).append(viewOf(other));
    return OdString(both.data(), static_cast<int>(both.size()));
}

OdAnsiString OdStringToUtf8String(const OdString& text)
{
    std::string out;
    out.reserve(static_cast<std::size_t>(text.getLength()));
    for (const wchar_t c : viewOf(text))
        appendUtf8(out, static_cast<char32_t>(c));
    return OdAnsiString(out.data(), static_cast<int>(out.size()));
}

OdString Utf8StringToOdString(const OdAnsiString& text)
{
    std::wstring out;
    std::string_view rest(text.c_str(), static_cast<std::size_t>(text.getLength()));
    out.reserve(rest.size());
    while (!rest.empty())
        out += static_cast<wchar_t>(takeUtf8(rest));
    return OdString(out.data(), static_cast<int>(out.size()));
}
