#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <string_view>

namespace drawing {

/// One pair of lines of a tagged text file.
struct Tag
{
    int code = -1;
    std::string_view value; ///< The value line, blanks kept, without its line end; not decoded.
    qint64 begin = 0;       ///< File offset of the group code line.
    qint64 valueBegin = 0;  ///< File offset of the value line.
    qint64 end = 0;         ///< File offset behind the value's line end.

    double toDouble() const;          ///< 0.0 for text that is not a number.
    qint64 toInteger() const;         ///< 0 for text that is not a number; a fraction is cut off.
    quint64 toHandle() const;         ///< Hexadecimal; 0 for text that is not.
    std::string_view trimmed() const; ///< The value without blanks around it.
};

/// `text` without blanks and tabs around it.
std::string_view trimmedView(std::string_view text);

/// Walks over the tags of a byte range. Stops at the range's end, at a cut-off pair, and at a group
/// code that is not a number; `broken()` tells the last two from the first.
class TagReader
{
public:
    /// `bytes` must outlive the reader; `base` is the file offset of its first byte.
    explicit TagReader(std::string_view bytes, qint64 base = 0);

    /// Reads the next tag; false, with `tag` untouched, when there is none.
    bool next(Tag& tag);
    bool broken() const { return m_broken; }
    /// File offset of the tag that `next` reads next.
    qint64 offset() const { return m_base + m_position; }

private:
    std::string_view m_bytes;
    qint64 m_base = 0;
    qint64 m_position = 0;
    bool m_broken = false;
};

} // namespace drawing
