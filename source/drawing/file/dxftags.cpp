#include "dxftags.h"

#include "tagscan.h"

#include <charconv>

namespace drawing {

namespace {

template <class Number, class... Format>
Number parsed(std::string_view text, bool mayHaveTail, Format... format)
{
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    const char* const end = text.data() + text.size();
    Number number{};
    const auto result = std::from_chars(text.data(), end, number, format...);
    if (result.ec != std::errc())
        return Number{};
    const bool whole = result.ptr == end || (mayHaveTail && *result.ptr == '.');
    return whole ? number : Number{};
}

} // namespace

std::string_view trimmedView(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r";
    const size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

double Tag::toDouble() const
{
    return parsed<double>(trimmed(), false, std::chars_format::general);
}

qint64 Tag::toInteger() const
{
    return parsed<qint64>(trimmed(), true, 10);
}

quint64 Tag::toHandle() const
{
    return parsed<quint64>(trimmed(), false, 16);
}

std::string_view Tag::trimmed() const
{
    return trimmedView(value);
}

TagReader::TagReader(std::string_view bytes, qint64 base) : m_bytes(bytes), m_base(base) {}

bool TagReader::next(Tag& tag)
{
    const char* const begin = m_bytes.data();
    RawTag raw;
    const ScanResult result = scanTag(begin + m_position, begin + m_bytes.size(), raw);
    m_broken = result != ScanResult::Tag && result != ScanResult::End;
    if (result != ScanResult::Tag)
        return false;
    tag.code = raw.code;
    tag.value = raw.text();
    tag.begin = offset();
    tag.valueBegin = m_base + (raw.value - begin);
    m_position = raw.after - begin;
    tag.end = offset();
    return true;
}

} // namespace drawing
