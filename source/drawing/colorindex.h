#pragma once

#include <QtGlobal>

namespace drawing {

constexpr int kColorByBlock = 0;
constexpr int kColorForeground = 7; ///< White on a dark background, black on a light one.
constexpr int kColorByLayer = 256;

/// Red, green and blue (0x00RRGGBB) of a colour index 1..255; anything else is white.
quint32 colorOfIndex(int index);

} // namespace drawing
