#include "tag.h"

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

double Tag::real() const
{
    return parsed<double>(trimmed(), false, std::chars_format::general);
}

qint64 Tag::integer() const
{
    return parsed<qint64>(trimmed(), true, 10);
}

quint64 Tag::handle() const
{
    return parsed<quint64>(trimmed(), false, 16);
}

std::string_view Tag::trimmed() const
{
    return trimmedView(text());
}

} // namespace drawing
