#pragma once

#include "engine/job.h"

namespace drawing {
class Drawing;
}

namespace layertool {

/// Compares the layers and the layer states of two drawings. Each difference is counted in `result`
/// and becomes one of its rows (change, name, property, before, after).
void compareDrawings(const drawing::Drawing& first, const drawing::Drawing& second, Result& result);

} // namespace layertool
