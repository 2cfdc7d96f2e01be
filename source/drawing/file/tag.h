#pragma once

#include "valuekind.h"

#include <QByteArray>

#include <string_view>

namespace drawing {

/// How a file writes its groups down: as pairs of lines, in old files with a CR alone at their
/// ends, or as bytes, with a group code of one byte in old files.
enum class Spelling : quint8 { Text, OldText, Binary, OldBinary };

constexpr bool isBinary(Spelling spelling)
{
    return spelling == Spelling::Binary || spelling == Spelling::OldBinary;
}

/// A range of file offsets; null when there is none.
struct ByteRange
{
    qint64 begin = -1;
    qint64 end = -1;

    bool isNull() const { return begin < 0; }
    bool contains(qint64 offset) const { return offset >= begin && offset < end; }
};

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}

/// `text` without blanks and tabs around it.
inline std::string_view trimmedView(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// One group of a file, its code and its value, and where these stand. It points into the bytes it
/// was read from, which must outlive it.
struct Tag
{
    int code = -1; ///< -1 for no group at all.
    Spelling spelling = Spelling::Text;
    const char* first = nullptr;    ///< Where the group begins.
    const char* value = nullptr;    ///< Where its value begins.
    const char* valueEnd = nullptr; ///< Behind the value, before what ends it.
    const char* after = nullptr;    ///< Where the next group begins.
    const char* origin = nullptr;   ///< Byte 0 of the file.

    bool isNull() const { return code == -1; }

    /// The value as a number; 0 where it is none. A sign and blanks around it are allowed, anything
    /// else behind it is not, apart from the fraction of an integer, which is cut off.
    qint64 integer() const;
    double real() const;
    /// The value as a hexadecimal number; 0 where it is none.
    quint64 handle() const;
    /// The value as text in the file's code page, blanks kept; empty for no group, and for a value
    /// that a binary file holds as a number.
    std::string_view text() const
    {
        const bool isText = !isBinary(spelling) || valueKind(code) == ValueKind::Text;
        return isText ? raw() : std::string_view();
    }
    /// The same without the blanks around it.
    std::string_view trimmed() const { return trimmedView(text()); }
    /// The same with numbers as text files have them.
    QByteArray printed() const;
    /// The bytes of the value, as the file spells it.
    std::string_view raw() const { return {value, static_cast<size_t>(valueEnd - value)}; }

    qint64 begin() const { return first - origin; } ///< File offset.
    qint64 end() const { return after - origin; }   ///< File offset of what follows.
    ByteRange range() const { return {begin(), end()}; }
    ByteRange valueRange() const { return {value - origin, valueEnd - origin}; }
};

inline std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<size_t>(bytes.size())};
}
inline QByteArray bytesOf(std::string_view view)
{
    return {view.data(), static_cast<int>(view.size())};
}

} // namespace drawing
