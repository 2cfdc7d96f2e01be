#pragma once

#include "engine/job.h"

namespace drawing {
class Drawing;
}

namespace layertool {

/// Holds the layers and the layer states of two drawings against each other. Each difference
/// becomes a row of `result` (change, name, property, before, after) and is counted there.
void compareDrawings(const drawing::Drawing& first, const drawing::Drawing& second, Result& result);

} // namespace layertool
