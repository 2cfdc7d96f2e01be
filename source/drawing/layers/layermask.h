#pragma once

#include "layer.h"

namespace drawing {

/// The layer properties that layer states restore and viewports override. The values are the bits
/// of a mask.
enum LayerStateMask : int {
    kStateOnOff = 1,
    kStateFreeze = 2,
    kStateLock = 4,
    kStatePlot = 8,
    kStateNewViewportFreeze = 16,
    kStateColor = 32,
    kStateLinetype = 64,
    kStateLineweight = 128,
    kStatePlotStyle = 256,
    kStateCurrentViewport = 512,
    kStateTransparency = 1024,
    kStateEverything = 2047
};

/// Returns `now` with the properties in `mask` taken from `saved`.
LayerProperties maskedProperties(
    const LayerProperties& now, const LayerProperties& saved, int mask);

} // namespace drawing
