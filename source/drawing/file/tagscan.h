#pragma once

#include "tag.h"

#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace drawing {

/// A longer line is refused: no text could hold the longest, and nothing that is meant needs it.
constexpr std::ptrdiff_t kLongestLine = 1 << 24;

enum class ScanResult { Tag, End, TooLong, CutOff, BadCode };

/// The next LF from `p` on, or `end`.
inline const char* findLineEnd(const char* p, const char* end)
{
#ifdef __SSE2__
    // Most lines are shorter than 16 bytes: one compare here beats the call of memchr.
    const __m128i lineFeed = _mm_set1_epi8('\n');
    for (; end - p >= 16; p += 16) {
        const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        const int hits = _mm_movemask_epi8(_mm_cmpeq_epi8(block, lineFeed));
        if (hits != 0)
            return p + __builtin_ctz(static_cast<unsigned>(hits));
    }
#endif
    if (p == end)
        return end;
    const void* hit = std::memchr(p, '\n', static_cast<size_t>(end - p));
    return hit ? static_cast<const char*>(hit) : end;
}

/// Reads the pair of lines at `p`; `tag` is left alone unless there is one. A value line without a
/// line end counts when it ends the bytes.
inline ScanResult scanText(const char* p, const char* end, Tag& tag)
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
    while (p != end && (*p == '\r' || *p == ' ' || *p == '\t'))
        ++p;
    if (p == end)
        return ScanResult::CutOff;
    if (!isNumber || *p != '\n')
        return ScanResult::BadCode;
    if (++p == end)
        return ScanResult::CutOff;
    const char* const lineEnd = findLineEnd(p, end);
    if (lineEnd - p > kLongestLine)
        return ScanResult::TooLong;
    tag.code = negative ? -code : code;
    tag.first = first;
    tag.value = p;
    tag.valueEnd = lineEnd != p && lineEnd[-1] == '\r' ? lineEnd - 1 : lineEnd;
    tag.after = lineEnd == end ? end : lineEnd + 1;
    return ScanResult::Tag;
}

} // namespace drawing
