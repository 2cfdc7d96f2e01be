#pragma once

#include "formatlimits.h"
#include "namerule.h"

namespace drawing {

// Drawings compare and fold names in the same way as the dialogs.
using vnsi::foldedName;
using vnsi::isSameName;

/// The maximum length of names in formats without long names.
constexpr int kMostInOldFormats = 31;
/// Whether a format without long names can hold this name: letters (including those of the code
/// page), digits, $, - and _.
bool isOldName(const QString& name);

/// The reason why `name` must not be given to something, as a sentence that refers to it as `what`
/// ("图层名"); empty when the name is allowed. Older versions allow less. Names that a file already
/// has are kept in any case.
QString nameRefusal(const QString& name, const QString& what, const FormatLimits& limits);

} // namespace drawing
