#pragma once

#include "geometrymath.h"
#include "layers/layeroverrides.h"

#include <vector>

namespace drawing {

/// A window of a sheet onto model space.
struct SheetViewport
{
    int entity = -1;
    Transform3 toSheet;           ///< From model space.
    double scale = 1;             ///< Units of the sheet that a unit of model space takes.
    std::vector<QPointF> outline; ///< On the sheet; what lies outside is cut away.
    bool isOn = true;             ///< Shows what it is a window onto.
    bool isLocked = false;        ///< Its scale stays.
    bool isCurrent = false;
    std::vector<LayerId> frozen;             ///< Ascending.
    std::vector<LayerInViewport> overridden; ///< Layers that look otherwise in it.
};

/// The sheet of a layout.
struct Sheet
{
    Box paper;     ///< In the layout's units; empty where the file does not tell.
    Box printable; ///< Without the margins.
    double unitsPerMillimetre = 1;
    bool hasPaperLinetypes = true; ///< Dashes are as long in the viewports as on the sheet.
    std::vector<SheetViewport> viewports;
};

} // namespace drawing
