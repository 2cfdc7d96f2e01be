#pragma once

#include <string_view>
#include <utility>
#include <vector>

namespace host {

/// One alternative of a wildcard pattern, ready to be matched.
class Wildcard
{
public:
    /// Takes the alternative at the front of `pattern` off, with the comma that ends it; the last
    /// one has none.
    static Wildcard take(std::wstring_view& pattern, bool& isLast);

    bool matches(std::wstring_view text, bool ignoreCase) const;

private:
    enum class Kind { Character, Any, Digit, Letter, Other, OneOf, NoneOf, Run };
    struct Element
    {
        Kind kind;
        wchar_t character = 0;
        std::vector<std::pair<wchar_t, wchar_t>> ranges;
    };

    static std::size_t bracketEnd(std::wstring_view pattern);
    static Element bracket(std::wstring_view content);
    static bool fits(const Element& element, wchar_t c, bool ignoreCase);

    std::vector<Element> m_elements;
    bool m_isNegated = false;
};

} // namespace host
