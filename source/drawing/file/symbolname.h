#pragma once

#include "formatlimits.h"
#include "namerule.h"

namespace drawing {

// Names compare and fold as the dialogs do it.
using vnsi::foldedName;
using vnsi::isSameName;

/// The most characters of names in formats without long ones.
constexpr int kMostInOldFormats = 31;
/// Whether such formats can hold a name: letters, those of the code page among them, digits, $ - _.
bool isOldName(const QString& name);

/// What is wrong with a name that is to be given, as a sentence that calls it by `what` ("图层名");
/// empty when it may be given. Older versions allow less; what a file has is kept in any case.
QString nameRefusal(const QString& name, const QString& what, const FormatLimits& limits);

} // namespace drawing
