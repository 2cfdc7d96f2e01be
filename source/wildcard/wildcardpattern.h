#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace wildcard {

/// One alternative of a wildcard pattern (`#` a digit, `@` a letter, `.` neither, `*` any run, `?`
/// one character, `[...]` and `[~...]` sets, a leading `~` for "not", the grave accent before a
/// character that stands for itself), ready to be matched.
class Wildcard
{
public:
    /// Takes the alternative at the front of `pattern` off, with the comma that ends it; the last
    /// one has none.
    static Wildcard take(std::wstring_view& pattern, bool& isLast);

    bool matches(std::wstring_view text, bool ignoreCase) const;
    /// Whether it matches one text alone, which is then in `word`.
    bool isWord(std::wstring& word) const;

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

/// A whole pattern, ready for many texts. Alternatives that are plain words are looked up and not
/// tried one after the other: a pattern may name thousands.
class WildcardPattern
{
public:
    WildcardPattern(std::wstring_view pattern, bool ignoreCase);

    bool matches(std::wstring_view text) const;

private:
    bool m_ignoreCase;
    std::unordered_set<std::wstring> m_words; ///< Folded where case does not count.
    std::vector<Wildcard> m_others;
};

} // namespace wildcard
