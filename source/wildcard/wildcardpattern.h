#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace wildcard {

/// One alternative of a wildcard pattern, prepared for matching. `#` matches a digit, `@` a letter,
/// `.` neither, `*` any run, `?` one character, `[...]` and `[~...]` are sets, a leading `~` means
/// "not", and a grave accent makes the next character stand for itself.
class Wildcard
{
public:
    /// Removes the first alternative from `pattern`, together with the comma after it. The last
    /// alternative has no comma.
    static Wildcard take(std::wstring_view& pattern, bool& isLast);

    bool matches(std::wstring_view text, bool ignoreCase) const;
    /// Whether the alternative matches exactly one text, which is then stored in `word`.
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

/// A whole pattern, prepared for many texts. Alternatives that are plain words are looked up
/// instead of being tried one after the other, because a pattern may name thousands.
class WildcardPattern
{
public:
    WildcardPattern(std::wstring_view pattern, bool ignoreCase);

    bool matches(std::wstring_view text) const;

private:
    bool m_ignoreCase;
    std::unordered_set<std::wstring> m_words; ///< Folded when letter case is ignored.
    std::vector<Wildcard> m_others;
};

} // namespace wildcard
