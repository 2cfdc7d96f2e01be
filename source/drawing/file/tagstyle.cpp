#include "tagstyle.h"

#include "tagreader.h"

#include <algorithm>
#include <limits>

namespace drawing {

namespace {

constexpr int kCodeWidth = 3;

bool isFlagCode(int code)
{
    return (code >= 60 && code <= 79) || (code >= 170 && code <= 179);
}

/// The width of an integer in files that align integers.
int numberWidth(int code)
{
    const bool isLong = (code >= 90 && code <= 99) || (code >= 420 && code <= 449) || code == 1071;
    return isLong ? 9 : 6;
}

template <class Number>
QByteArray bytesOf(Number number)
{
    return {reinterpret_cast<const char*>(&number), sizeof number};
}

template <class Number>
QByteArray nearest(qint64 value)
{
    using Limits = std::numeric_limits<Number>;
    return bytesOf(static_cast<Number>(std::clamp<qint64>(value, Limits::lowest(), Limits::max())));
}

/// Limits a number to the range of its type, because a table may have more records than its count
/// can hold.
QByteArray binaryInteger(int code, qint64 value)
{
    switch (valueKind(code)) {
    case ValueKind::Int8:
        return nearest<qint8>(value);
    case ValueKind::Int16:
        return nearest<qint16>(value);
    case ValueKind::Int32:
        return nearest<qint32>(value);
    case ValueKind::Real:
        return bytesOf(static_cast<double>(value));
    default:
        return bytesOf(value);
    }
}

} // namespace

TagStyle TagStyle::of(std::string_view bytes, Spelling spelling)
{
    TagStyle style;
    style.spelling = spelling;
    if (isBinary(spelling))
        return style;
    const size_t lineEnd = bytes.find('\n');
    if (spelling == Spelling::OldText)
        style.lineEnd = "\r";
    else if (lineEnd != std::string_view::npos && lineEnd > 0 && bytes[lineEnd - 1] == '\r')
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
    if (isBinary(spelling)) {
        const bool isText = valueKind(code) == ValueKind::Text;
        return binaryCode(code) + value(code, text) + (isText ? QByteArray(1, '\0') : QByteArray());
    }
    QByteArray line = QByteArray::number(code);
    if (alignCodes)
        line = line.rightJustified(kCodeWidth);
    return line + lineEnd + text + lineEnd;
}

QByteArray TagStyle::binaryCode(int code) const
{
    constexpr int kLongCode = 255;
    if (spelling == Spelling::Binary)
        return bytesOf(static_cast<quint16>(code));
    return code < kLongCode
               ? bytesOf(static_cast<quint8>(code))
               : bytesOf(static_cast<quint8>(kLongCode)) + bytesOf(static_cast<quint16>(code));
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

QByteArray TagStyle::value(int code, const QByteArray& text) const
{
    if (!isBinary(spelling))
        return text;
    switch (valueKind(code)) {
    case ValueKind::Real:
        return bytesOf(text.toDouble());
    case ValueKind::Int8:
    case ValueKind::Int16:
    case ValueKind::Int32:
    case ValueKind::Int64:
        return binaryInteger(code, text.trimmed().toLongLong());
    default:
        return text;
    }
}

QByteArray numberInPlace(const Tag& tag, qint64 value)
{
    if (isBinary(tag.spelling) && valueKind(tag.code) != ValueKind::Text)
        return binaryInteger(tag.code, value);
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
