#pragma once

#include "drawingdata.h"

namespace drawing {

/// Makes everything that names a layer follow the renamings and deletions of the open step, in one
/// pass over the file's places however many layers changed. What only a deleted layer held
/// together (block heads, XDATA) goes to layer 0.
void updateReferences(DrawingData& data);

} // namespace drawing
