#pragma once

namespace drawing {

constexpr int kColorByBlock = 0;
constexpr int kColorForeground = 7; ///< White on a dark background, black on a light one.
constexpr int kColorByLayer = 256;

} // namespace drawing
