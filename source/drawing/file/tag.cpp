#include "tag.h"

#include <QLocale>
#include <QSysInfo>

#include <charconv>
#include <cmath>
#include <cstring>

namespace drawing {

namespace {

template <class Number, class... Format>
Number parsed(std::string_view text, bool mayHaveTail, Format... format)
{
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    const char* const end = text.data() + text.size();
    Number number{};
    const auto result = std::from_chars(text.data(), end, number, format...);
    if (result.ec != std::errc())
        return Number{};
    const bool whole = result.ptr == end || (mayHaveTail && *result.ptr == '.');
    return whole ? number : Number{};
}

/// Reads a number of a binary file, which is little-endian and may be unaligned.
template <class Number>
Number read(const char* bytes)
{
    static_assert(QSysInfo::ByteOrder == QSysInfo::LittleEndian);
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

} // namespace

double Tag::real() const
{
    if (!isBinary(spelling) || valueKind(code) == ValueKind::Text)
        return parsed<double>(trimmed(), false, std::chars_format::general);
    return valueKind(code) == ValueKind::Real ? read<double>(value)
                                              : static_cast<double>(integer());
}

qint64 Tag::integer() const
{
    constexpr double kFarthest = 9e18;
    if (!isBinary(spelling))
        return parsed<qint64>(trimmed(), true, 10);
    switch (valueKind(code)) {
    case ValueKind::Int8:
        return read<qint8>(value);
    case ValueKind::Int16:
        return read<qint16>(value);
    case ValueKind::Int32:
        return read<qint32>(value);
    case ValueKind::Int64:
        return read<qint64>(value);
    case ValueKind::Real: {
        const double number = read<double>(value);
        return std::abs(number) < kFarthest ? static_cast<qint64>(number) : 0;
    }
    default:
        return parsed<qint64>(trimmed(), true, 10);
    }
}

quint64 Tag::handle() const
{
    return parsed<quint64>(trimmed(), false, 16);
}

QByteArray Tag::printed() const
{
    if (isBinary(spelling) && valueKind(code) == ValueKind::Real)
        return QByteArray::number(real(), 'g', QLocale::FloatingPointShortest);
    if (isBinary(spelling) && valueKind(code) == ValueKind::Chunk)
        return QByteArray(raw().data(), static_cast<int>(raw().size())).toHex().toUpper();
    if (isBinary(spelling) && valueKind(code) != ValueKind::Text)
        return QByteArray::number(integer());
    return {trimmed().data(), static_cast<int>(trimmed().size())};
}

} // namespace drawing
