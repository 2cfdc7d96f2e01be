#pragma once

#include "geometrycurves.h"
#include "geometrytags.h"

namespace drawing {

/// The lines of an MLINE side by side, each from end to end, in the world's coordinates. Where one
/// is cut there is a break.
std::vector<Path> multiLineElements(const EntityTags& multiLine);

} // namespace drawing
