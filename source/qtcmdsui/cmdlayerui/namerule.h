#pragma once

#include <QString>

namespace vnsi {

/// The thirteen characters that no name of a layer or layer state may hold, in the order in which
/// messages list them.
inline constexpr QLatin1String kForbiddenInNames("\\<>/\":;?*|,=`", 13);
/// The most characters a layer name may have.
inline constexpr int kMostNameCharacters = 255;

bool holdsForbiddenCharacter(const QString& name);
/// Whether `name` has more characters than a layer name may have.
bool isTooLongForName(const QString& name);
/// Whether two names mean the same layer: letter case does not count.
bool isSameName(const QString& a, const QString& b);
/// One spelling for all names that `isSameName` takes for one: a key to look names up by.
QString foldedName(const QString& name);

} // namespace vnsi
