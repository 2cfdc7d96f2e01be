#pragma once

#include "tag.h"

#include <QByteArray>

namespace drawing {

/// How a file writes its tags, so that new ones look like their neighbours.
struct TagStyle
{
    Spelling spelling = Spelling::Text;
    QByteArray lineEnd = "\n";
    bool alignCodes = true;   ///< Group codes right-aligned to 3 columns.
    bool alignNumbers = true; ///< Integers right-aligned to 6 columns, large ones to 9.

    /// The style of some tags that stand in the file.
    static TagStyle of(std::string_view bytes, Spelling spelling);

    /// A group with the value that this text, encoded, stands for: a number where the group holds
    /// one.
    QByteArray tag(int code, const QByteArray& text) const;
    QByteArray number(int code, qint64 value) const;
    QByteArray handle(int code, quint64 value) const;
    /// The bytes of the value alone.
    QByteArray value(int code, const QByteArray& text) const;

private:
    QByteArray binaryCode(int code) const;
};

/// The bytes of a value that takes the place of the tag's, in the width of what was there.
QByteArray numberInPlace(const Tag& tag, qint64 value);

/// A handle as text.
QByteArray handleText(quint64 handle);

} // namespace drawing
