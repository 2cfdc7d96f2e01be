#pragma once

#include "geometrycurves.h"
#include "geometrytags.h"

namespace drawing {

/// The parallel lines of an MLINE in world coordinates, each from end to end. Cuts in a line appear
/// as breaks.
std::vector<Path> multiLineElements(const EntityTags& multiLine);

} // namespace drawing
