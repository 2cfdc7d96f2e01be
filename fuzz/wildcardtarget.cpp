#include "fuzzing.h"
#include "vnstrings.h"

#include <string>

namespace {

constexpr std::size_t kLongest = 400;
constexpr std::size_t kMostRepeats = 64;

std::wstring repeated(const std::wstring& text, std::size_t times)
{
    std::wstring all;
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

/// A pattern that matches only this text.
std::wstring escaped(const std::wstring& text)
{
    std::wstring pattern;
    for (const wchar_t c : text)
        pattern += {L'`', c};
    return pattern;
}

bool doesMatch(const OdString& name, const std::wstring& pattern, bool ignoreCase)
{
    return vnsi::vnsiutWcMatchEx(
        name, OdString(pattern.data(), static_cast<int>(pattern.size())), ignoreCase);
}

} // namespace

/// Matches patterns and texts, including very long ones. Anything worse than text length times
/// pattern length exceeds the time limit.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider bytes(data, size);
    const bool ignoreCase = bytes.ConsumeBool();
    const std::size_t textTimes = bytes.ConsumeIntegralInRange<std::size_t>(1, kMostRepeats);
    const std::size_t patternTimes = bytes.ConsumeIntegralInRange<std::size_t>(1, kMostRepeats);
    const std::wstring text = repeated(fuzz::takeText(bytes, kLongest).toStdWString(), textTimes);
    const std::wstring pattern =
        repeated(fuzz::takeText(bytes, kLongest).toStdWString(), patternTimes);

    const OdString name(text.data(), static_cast<int>(text.size()));
    const bool matches = doesMatch(name, pattern, ignoreCase);
    if (pattern.find_first_of(L",~`") == std::wstring::npos)
        fuzz::require(doesMatch(name, L'~' + pattern, ignoreCase) != matches,
            "a pattern and its negation exclude each other");
    fuzz::require(doesMatch(name, escaped(text), ignoreCase), "an escaped text matches itself");
    return 0;
}
