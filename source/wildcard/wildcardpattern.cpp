#include "wildcardpattern.h"

#include <QChar>

#include <algorithm>

namespace wildcard {

namespace {

constexpr wchar_t kEscape = L'`';

wchar_t folded(wchar_t c, bool ignoreCase)
{
    return ignoreCase ? static_cast<wchar_t>(QChar::toCaseFolded(static_cast<uint>(c))) : c;
}

std::wstring foldedText(std::wstring_view text, bool ignoreCase)
{
    std::wstring result(text);
    for (wchar_t& c : result)
        c = folded(c, ignoreCase);
    return result;
}

using Ranges = std::vector<std::pair<wchar_t, wchar_t>>;

/// The same characters as sorted ranges that do not overlap.
Ranges tidied(Ranges ranges)
{
    std::sort(ranges.begin(), ranges.end());
    Ranges tidy;
    for (const auto& [first, last] : ranges) {
        if (first > last)
            continue;
        if (!tidy.empty() && first <= tidy.back().second)
            tidy.back().second = std::max(tidy.back().second, last);
        else
            tidy.emplace_back(first, last);
    }
    return tidy;
}

bool holds(const Ranges& tidy, wchar_t c)
{
    const auto next = std::upper_bound(tidy.begin(), tidy.end(), c,
        [](wchar_t wanted, const auto& range) { return wanted < range.first; });
    return next != tidy.begin() && c <= std::prev(next)->second;
}

} // namespace

/// The position of the bracket that closes the first one; npos when there is none.
std::size_t Wildcard::bracketEnd(std::wstring_view pattern)
{
    // A closing bracket directly after the opening one stands for itself.
    const std::size_t content = pattern.substr(1, 1) == L"~" ? 2 : 1;
    return pattern.find(L']', content + 1);
}

Wildcard::Element Wildcard::bracket(std::wstring_view content)
{
    Element element{Kind::OneOf, 0, {}};
    if (content.front() == L'~') {
        element.kind = Kind::NoneOf;
        content.remove_prefix(1);
    }
    while (!content.empty()) {
        if (content.size() > 1 && content.front() == kEscape)
            content.remove_prefix(1);
        const wchar_t first = content.front();
        const bool isRange = content.size() > 2 && content[1] == L'-';
        element.ranges.emplace_back(first, isRange ? content[2] : first);
        content.remove_prefix(isRange ? 3 : 1);
    }
    element.ranges = tidied(std::move(element.ranges));
    return element;
}

Wildcard Wildcard::take(std::wstring_view& pattern, bool& isLast)
{
    Wildcard wildcard;
    if (!pattern.empty() && pattern.front() == L'~') {
        wildcard.m_isNegated = true;
        pattern.remove_prefix(1);
    }
    bool mayClose = true; // When no closing bracket is left, the rest need not be searched again.
    while (!pattern.empty() && pattern.front() != L',') {
        const wchar_t c = pattern.front();
        const std::size_t end =
            c == L'[' && mayClose ? bracketEnd(pattern) : std::wstring_view::npos;
        if (end != std::wstring_view::npos) {
            wildcard.m_elements.push_back(bracket(pattern.substr(1, end - 1)));
            pattern.remove_prefix(end + 1);
            continue;
        }
        mayClose = mayClose && c != L'[';
        if (c == kEscape && pattern.size() > 1)
            pattern.remove_prefix(1);
        constexpr std::wstring_view kSigns = L"?#@.*";
        constexpr Kind kKinds[] = {Kind::Any, Kind::Digit, Kind::Letter, Kind::Other, Kind::Run};
        const std::size_t sign = c == kEscape ? std::wstring_view::npos : kSigns.find(c);
        const bool isSign = sign != std::wstring_view::npos;
        wildcard.m_elements.push_back(
            {isSign ? kKinds[sign] : Kind::Character, pattern.front(), {}});
        pattern.remove_prefix(1);
    }
    isLast = pattern.empty();
    if (!isLast)
        pattern.remove_prefix(1);
    return wildcard;
}

bool Wildcard::fits(const Element& element, wchar_t c, bool ignoreCase)
{
    const auto code = static_cast<char32_t>(c);
    const auto isListed = [&] {
        const wchar_t lower = static_cast<wchar_t>(QChar::toLower(code));
        const wchar_t upper = static_cast<wchar_t>(QChar::toUpper(code));
        return holds(element.ranges, c) ||
               (ignoreCase && (holds(element.ranges, lower) || holds(element.ranges, upper)));
    };
    switch (element.kind) {
    case Kind::Character:
        return folded(element.character, ignoreCase) == folded(c, ignoreCase);
    case Kind::Digit:
        return QChar::isDigit(code);
    case Kind::Letter:
        return QChar::isLetter(code);
    case Kind::Other:
        return !QChar::isLetterOrNumber(code);
    case Kind::OneOf:
        return isListed();
    case Kind::NoneOf:
        return !isListed();
    case Kind::Any:
    case Kind::Run:
        break;
    }
    return true;
}

// After a mismatch only the last run is extended, because it can match everything that an earlier
// run could. The work is therefore at most text length times pattern length.
bool Wildcard::matches(std::wstring_view text, bool ignoreCase) const
{
    constexpr std::size_t kNone = std::wstring_view::npos;
    std::size_t at = 0, element = 0, runElement = kNone, runEnd = 0;
    while (at < text.size()) {
        const bool isInside = element < m_elements.size();
        if (isInside && m_elements[element].kind == Kind::Run) {
            runElement = element++;
            runEnd = at;
        } else if (isInside && fits(m_elements[element], text[at], ignoreCase)) {
            ++element;
            ++at;
        } else if (runElement != kNone) {
            element = runElement + 1;
            at = ++runEnd;
        } else {
            return m_isNegated;
        }
    }
    while (element < m_elements.size() && m_elements[element].kind == Kind::Run)
        ++element;
    return (element == m_elements.size()) != m_isNegated;
}

bool Wildcard::isWord(std::wstring& word) const
{
    word.clear();
    for (const Element& element : m_elements) {
        if (element.kind != Kind::Character)
            return false;
        word += element.character;
    }
    return !m_isNegated;
}

WildcardPattern::WildcardPattern(std::wstring_view pattern, bool ignoreCase)
    : m_ignoreCase(ignoreCase)
{
    bool isLast = false;
    std::wstring word;
    while (!isLast) {
        Wildcard alternative = Wildcard::take(pattern, isLast);
        if (alternative.isWord(word))
            m_words.insert(foldedText(word, ignoreCase));
        else
            m_others.push_back(std::move(alternative));
    }
}

bool WildcardPattern::matches(std::wstring_view text) const
{
    if (!m_words.empty() && m_words.count(foldedText(text, m_ignoreCase)) > 0)
        return true;
    return std::any_of(m_others.begin(), m_others.end(),
        [&](const Wildcard& alternative) { return alternative.matches(text, m_ignoreCase); });
}

} // namespace wildcard
