#pragma once

#include "tag.h"

#include <cstring>
#include <type_traits>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace drawing {

/// Longer lines are refused: no legitimate line is that long, and a text could not hold the
/// longest.
constexpr std::ptrdiff_t kLongestLine = 1 << 24;

enum class ScanResult { Tag, End, TooLong, CutOff, BadCode };

/// The next byte equal to `wanted` from `p` on, or `end`.
template <char wanted>
[[gnu::always_inline]] inline const char* findByte(const char* p, const char* end)
{
#ifdef __SSE2__
    // Most lines are shorter than 16 bytes, so comparing 16 bytes here is faster than calling
    // memchr.
    const __m128i sought = _mm_set1_epi8(wanted);
    for (; end - p >= 16; p += 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const int hits = _mm_movemask_epi8(_mm_cmpeq_epi8(block, sought));
        if (hits != 0)
            return p + __builtin_ctz(static_cast<unsigned>(hits));
    }
#endif
    if (p == end)
        return end;
    const void* hit = std::memchr(p, wanted, static_cast<size_t>(end - p));
    return hit ? static_cast<const char*>(hit) : end;
}

/// The end of the value in the line at `p`, without a CR before the line break.
template <char lineFeed>
const char* lineValueEnd(const char* p, const char* lineEnd)
{
    return lineFeed == '\n' && lineEnd != p && lineEnd[-1] == '\r' ? lineEnd - 1 : lineEnd;
}

/// The end of the text value at `p`.
inline const char* valueEnd(const char* p, const char* end, Spelling spelling)
{
    if (isBinary(spelling))
        return findByte<'\0'>(p, end);
    return spelling == Spelling::Text ? lineValueEnd<'\n'>(p, findByte<'\n'>(p, end))
                                      : findByte<'\r'>(p, end);
}

/// Reads the pair of lines at `p`. `tag` is changed only when there is one. A value line without a
/// line break is accepted at the very end of the bytes.
template <char lineFeed>
[[gnu::always_inline]] inline ScanResult scanText(const char* p, const char* end, Tag& tag)
{
    constexpr int kMostDigits = 5;
    if (p == end)
        return ScanResult::End;
    const char* const first = p;
    while (p != end && (*p == ' ' || *p == '\t'))
        ++p;
    const bool negative = p != end && *p == '-';
    p += negative ? 1 : 0;
    const char* const digits = p;
    int code = 0;
    for (; p != end && p - digits < kMostDigits; ++p) {
        const int digit = *p - '0';
        if (digit < 0 || digit > 9)
            break;
        code = code * 10 + digit;
    }
    const bool isNumber = p != digits;
    while (p != end && ((*p == '\r' && lineFeed != '\r') || *p == ' ' || *p == '\t'))
        ++p;
    if (p == end)
        return ScanResult::CutOff;
    if (!isNumber || *p != lineFeed)
        return ScanResult::BadCode;
    if (++p == end)
        return ScanResult::CutOff;
    const char* const lineEnd = findByte<lineFeed>(p, end);
    if (lineEnd - p > kLongestLine)
        return ScanResult::TooLong;
    tag.code = negative ? -code : code;
    tag.first = first;
    tag.value = p;
    tag.valueEnd = lineValueEnd<lineFeed>(p, lineEnd);
    tag.after = lineEnd == end ? end : lineEnd + 1;
    return ScanResult::Tag;
}

/// Reads the group of a binary file at `p`; group codes take one byte in old files. Otherwise like
/// `scanText`.
template <bool isOld>
[[gnu::always_inline]] inline ScanResult scanBinary(const char* p, const char* end, Tag& tag)
{
    constexpr uchar kLongCode = 255; // After this byte the group code follows in two bytes.
    if (p == end)
        return ScanResult::End;
    const char* const first = p;
    int code = static_cast<uchar>(*p);
    const bool isLong = !isOld || code == kLongCode;
    p += isOld ? 1 : 0;
    if (isLong) {
        if (end - p < 2)
            return ScanResult::CutOff;
        code = static_cast<uchar>(p[0]) | static_cast<uchar>(p[1]) << 8;
        p += 2;
    }
    const ValueKind kind = valueKind(code);
    if (kind == ValueKind::Unknown)
        return ScanResult::BadCode;
    if (p == end)
        return ScanResult::CutOff;
    std::ptrdiff_t size = kValueSizes[static_cast<size_t>(kind)];
    std::ptrdiff_t behind = 0;
    if (kind == ValueKind::Text) {
        size = findByte<'\0'>(p, end) - p;
        behind = 1;
    } else if (kind == ValueKind::Chunk) {
        size = static_cast<uchar>(*p++);
    }
    if (size > kLongestLine)
        return ScanResult::TooLong;
    if (end - p < size + behind)
        return ScanResult::CutOff;
    tag.code = code;
    tag.first = first;
    tag.value = p;
    tag.valueEnd = p + size;
    tag.after = tag.valueEnd + behind;
    return ScanResult::Tag;
}

/// Reads the group at `p` in a known spelling. Opening a file spends most of its time here.
template <Spelling spelling>
[[gnu::always_inline]] inline ScanResult scanAs(const char* p, const char* end, Tag& tag)
{
    if constexpr (isBinary(spelling))
        return scanBinary<spelling == Spelling::OldBinary>(p, end, tag);
    else
        return scanText<(spelling == Spelling::Text ? '\n' : '\r')>(p, end, tag);
}

/// Calls `act` with the spelling as a compile-time constant.
template <class Act>
auto withSpelling(Spelling spelling, Act act)
{
    switch (spelling) {
    case Spelling::Text:
        return act(std::integral_constant<Spelling, Spelling::Text>());
    case Spelling::OldText:
        return act(std::integral_constant<Spelling, Spelling::OldText>());
    case Spelling::Binary:
        return act(std::integral_constant<Spelling, Spelling::Binary>());
    case Spelling::OldBinary:
        break;
    }
    return act(std::integral_constant<Spelling, Spelling::OldBinary>());
}

/// How the groups of a file are written, and where the first one is.
struct FileForm
{
    Spelling spelling = Spelling::Text;
    size_t begin = 0;

    /// Detects the form and skips what may precede the first group: a UTF-8 byte order mark and
    /// blank lines.
    static FileForm of(std::string_view bytes);
};

} // namespace drawing
