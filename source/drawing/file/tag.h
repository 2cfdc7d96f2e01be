#pragma once

#include <QtGlobal>

#include <string_view>

namespace drawing {

/// How a file writes its groups down.
enum class Spelling : quint8 { Text };

/// A range of file offsets; null when there is none.
struct ByteRange
{
    qint64 begin = -1;
    qint64 end = -1;

    bool isNull() const { return begin < 0; }
    bool contains(qint64 offset) const { return offset >= begin && offset < end; }
};

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
    /// The value as text in the file's code page, blanks kept; empty for no group.
    std::string_view text() const { return raw(); }
    /// The same without the blanks around it.
    std::string_view trimmed() const;
    /// The bytes of the value, as the file spells it.
    std::string_view raw() const { return {value, static_cast<size_t>(valueEnd - value)}; }

    qint64 begin() const { return first - origin; } ///< File offset.
    qint64 end() const { return after - origin; }   ///< File offset of what follows.
    ByteRange range() const { return {begin(), end()}; }
    ByteRange valueRange() const { return {value - origin, valueEnd - origin}; }
};

/// `text` without blanks and tabs around it.
std::string_view trimmedView(std::string_view text);

} // namespace drawing
