#include "tagstyle.h"

#include "tagreader.h"

namespace drawing {

namespace {

constexpr int kCodeWidth = 3;

bool isFlagCode(int code)
{
    return (code >= 60 && code <= 79) || (code >= 170 && code <= 179);
}

/// Width of an integer in files that align them.
int numberWidth(int code)
{
    const bool isLong = (code >= 90 && code <= 99) || (code >= 420 && code <= 449) || code == 1071;
    return isLong ? 9 : 6;
}

} // namespace

TagStyle TagStyle::of(std::string_view bytes, Spelling spelling)
{
    TagStyle style;
    style.spelling = spelling;
    const size_t lineEnd = bytes.find('\n');
    if (lineEnd != std::string_view::npos && lineEnd > 0 && bytes[lineEnd - 1] == '\r')
        style.lineEnd = "\r\n";
    style.alignCodes = !bytes.empty() && bytes.front() == ' ';
    style.alignNumbers = style.alignCodes;
    TagReader reader(bytes, 0, spelling);
    Tag tag;
    while (reader.next(tag)) {
        if (!isFlagCode(tag.code))
            continue;
        style.alignNumbers = !tag.raw().empty() && tag.raw().front() == ' ';
        break;
    }
    return style;
}

QByteArray TagStyle::tag(int code, const QByteArray& text) const
{
    QByteArray line = QByteArray::number(code);
    if (alignCodes)
        line = line.rightJustified(kCodeWidth);
    return line + lineEnd + value(code, text) + lineEnd;
}

QByteArray TagStyle::number(int code, qint64 value) const
{
    const QByteArray digits = QByteArray::number(value);
    return tag(code, alignNumbers ? digits.rightJustified(numberWidth(code)) : digits);
}

QByteArray TagStyle::handle(int code, quint64 value) const
{
    return tag(code, handleText(value));
}

QByteArray TagStyle::value(int, const QByteArray& text) const
{
    return text;
}

QByteArray numberInPlace(const Tag& tag, qint64 value)
{
    const QByteArray digits = QByteArray::number(value);
    const std::string_view old = tag.raw();
    const bool isAligned = !old.empty() && old.front() == ' ';
    return isAligned ? digits.rightJustified(static_cast<int>(old.size())) : digits;
}

QByteArray handleText(quint64 handle)
{
    return QByteArray::number(handle, 16).toUpper();
}

} // namespace drawing
