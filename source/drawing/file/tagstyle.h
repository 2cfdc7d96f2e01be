#pragma once

#include "tag.h"

#include <QByteArray>

namespace drawing {

/// The style in which a file writes its tags, so that new tags look like their neighbours.
struct TagStyle
{
    Spelling spelling = Spelling::Text;
    QByteArray lineEnd = "\n";
    bool alignCodes = true;   ///< Group codes are right-aligned to 3 columns.
    bool alignNumbers = true; ///< Integers are right-aligned to 6 columns, large ones to 9.

    /// Detects the style from tags of the file.
    static TagStyle of(std::string_view bytes, Spelling spelling);

    /// The bytes of a group. `text` is the encoded value; it is converted to a number when the
    /// group code holds one.
    QByteArray tag(int code, const QByteArray& text) const;
    QByteArray number(int code, qint64 value) const;
    QByteArray handle(int code, quint64 value) const;
    /// The bytes of the value alone.
    QByteArray value(int code, const QByteArray& text) const;

private:
    QByteArray binaryCode(int code) const;
};

/// The bytes of a number that replaces the tag's value, in the same width.
QByteArray numberInPlace(const Tag& tag, qint64 value);

/// The text form of a handle.
QByteArray handleText(quint64 handle);

} // namespace drawing
