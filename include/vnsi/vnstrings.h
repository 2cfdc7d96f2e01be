#pragma once

#include "OdString.h"
#include "vnsidef.h"

#include <QString>

namespace vnsi {

VNSI_EXPORT QString vnutOdStringToQString(const OdString& text);
VNSI_EXPORT OdString vnutQStringToOdString(const QString& text);

/// Whether `text` matches the wildcard `pattern`. `#` matches a digit, `@` a letter, `.` any
/// character that is neither, `*` any run of characters, `?` any one character, `[...]` one of the
/// listed characters and `[~...]` one that is not listed. A leading `~` inverts the pattern, `,`
/// separates alternative patterns, and a grave accent makes the next character stand for itself.
/// The time is bounded for every pattern.
VNSI_EXPORT bool vnsiutWcMatchEx(const OdString& text, const OdString& pattern, bool ignoreCase);

} // namespace vnsi
