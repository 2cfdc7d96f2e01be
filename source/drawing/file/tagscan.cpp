#include "tagreader.h"

namespace drawing {

namespace {

// Binary files begin with this sentinel, which contains the name of the writing program.
constexpr size_t kSentinelSize = 22;
constexpr std::string_view kSentinelEnd(" Binary DXF\r\n\x1a\0", 15);
constexpr std::string_view kUtf8Mark = "\xef\xbb\xbf";

bool isBinaryFile(std::string_view bytes)
{
    return bytes.size() >= kSentinelSize &&
           bytes.substr(kSentinelSize - kSentinelEnd.size(), kSentinelEnd.size()) == kSentinelEnd;
}

/// Determines the spelling from the first group, whose value is `SECTION`. A one-byte group code is
/// followed by a letter, a two-byte one by its second byte.
Spelling binarySpelling(std::string_view bytes)
{
    const bool isOld = bytes.size() > kSentinelSize + 1 && bytes[kSentinelSize + 1] != '\0';
    return isOld ? Spelling::OldBinary : Spelling::Binary;
}

} // namespace

ScanResult TagReader::read(Tag& tag)
{
    return withSpelling(
        m_spelling, [&](auto spelling) { return readAs<decltype(spelling)::value>(tag); });
}

FileForm FileForm::of(std::string_view bytes)
{
    if (isBinaryFile(bytes))
        return {binarySpelling(bytes), kSentinelSize};
    FileForm form;
    if (bytes.substr(0, kUtf8Mark.size()) == kUtf8Mark)
        form.begin = kUtf8Mark.size();
    for (size_t at = form.begin; at < bytes.size(); ++at) {
        const char c = bytes[at];
        if (c == '\r' || c == '\n')
            form.begin = at + 1;
        else if (c != ' ' && c != '\t')
            break;
    }
    const size_t lineEnd = bytes.find_first_of("\r\n", form.begin);
    const bool hasFeed = lineEnd == std::string_view::npos || bytes[lineEnd] == '\n' ||
                         bytes.substr(lineEnd + 1, 1) == "\n";
    form.spelling = hasFeed ? Spelling::Text : Spelling::OldText;
    return form;
}

} // namespace drawing
