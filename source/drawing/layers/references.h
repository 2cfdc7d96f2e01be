#pragma once

#include "drawingdata.h"

namespace drawing {

/// Makes everything that names a layer follow the renamings and deletions of the open step, in one
/// pass over the file's places however many layers changed. What names a merged layer names its
/// heir then; what still names a deleted one (block heads, XDATA) names layer 0.
void updateReferences(DrawingData& data);

} // namespace drawing
