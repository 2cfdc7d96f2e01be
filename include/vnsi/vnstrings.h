#pragma once

#include "OdString.h"
#include "vnsidef.h"

#include <QString>

namespace vnsi {

VNSI_EXPORT QString vnutOdStringToQString(const OdString& text);
VNSI_EXPORT OdString vnutQStringToOdString(const QString& text);

/// Whether `text` matches wildcard `pattern`: `#` a digit, `@` a letter, `.` neither, `*` any run,
/// `?` one character, `[...]` one of, `[~...]` none of, a leading `~` all but, `,` between
/// patterns, and a grave accent before a character that stands for itself. Takes bounded time for
/// any pattern.
VNSI_EXPORT bool vnsiutWcMatchEx(const OdString& text, const OdString& pattern, bool ignoreCase);

} // namespace vnsi
