#pragma once

#include "valuekind.h"

#include <QByteArray>

#include <string_view>

namespace drawing {

/// How a file writes its groups: as pairs of text lines (which end in a single CR in old files), or
/// in binary form (with one-byte group codes in old files).
enum class Spelling : quint8 { Text, OldText, Binary, OldBinary };

constexpr bool isBinary(Spelling spelling)
{
    return spelling == Spelling::Binary || spelling == Spelling::OldBinary;
}

/// A range of file offsets. A null range has no position.
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

/// `text` without the blanks and tabs around it.
inline std::string_view trimmedView(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// One group of a file: its code, its value and their positions. It points into the bytes that it
/// was read from, which must outlive it.
struct Tag
{
    int code = -1; ///< -1 when there is no group.
    Spelling spelling = Spelling::Text;
    const char* first = nullptr;    ///< Where the group begins.
    const char* value = nullptr;    ///< Where its value begins.
    const char* valueEnd = nullptr; ///< The end of the value, before its terminator.
    const char* after = nullptr;    ///< Where the next group begins.
    const char* origin = nullptr;   ///< Byte 0 of the file.

    bool isNull() const { return code == -1; }

    /// The value as an integer; 0 when it is none. A sign and surrounding blanks are allowed. A
    /// fraction is cut off; anything else after the number makes the value invalid.
    qint64 integer() const;
    double real() const;
    /// The value as a hexadecimal number; 0 when it is none.
    quint64 handle() const;
    /// The value as text in the file's code page, with its blanks. Empty when there is no group and
    /// when a binary file stores the value as a number.
    std::string_view text() const
    {
        const bool isText = !isBinary(spelling) || valueKind(code) == ValueKind::Text;
        return isText ? raw() : std::string_view();
    }
    /// `text()` without the blanks around it.
    std::string_view trimmed() const { return trimmedView(text()); }
    /// The value as text; numbers are spelled as in text files.
    QByteArray printed() const;
    /// The bytes of the value as they are in the file.
    std::string_view raw() const { return {value, static_cast<size_t>(valueEnd - value)}; }

    qint64 begin() const { return first - origin; } ///< The group's file offset.
    qint64 end() const { return after - origin; }   ///< The file offset after the group.
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
