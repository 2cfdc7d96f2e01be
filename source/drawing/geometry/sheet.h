#pragma once

#include "geometrymath.h"
#include "layers/layeroverrides.h"
#include "layers/viewportview.h"

#include <vector>

namespace drawing {

/// A viewport: a window of a sheet onto model space.
struct SheetViewport
{
    int entity = -1;
    QPointF center; ///< Center on the sheet.
    ViewportView view;
    Transform3 toSheet;           ///< Transforms from model space to the sheet.
    double scale = 1;             ///< The number of sheet units per unit of model space.
    std::vector<QPointF> outline; ///< On the sheet; geometry outside is clipped.
    bool isOn = true;             ///< Whether the viewport shows its contents.
    bool isLocked = false;        ///< Whether its view is locked.
    bool isCurrent = false;
    std::vector<LayerId> frozen;             ///< The frozen layers in ascending order.
    std::vector<LayerInViewport> overridden; ///< The layers with overrides in this viewport.

    /// Scales what is seen by `factor`; what is at this place of the sheet stays there.
    void zoomAt(const QPointF& place, double factor);
    /// Moves what is seen by so much of the sheet.
    void pan(const QPointF& way);
};

/// The sheet of a layout.
struct Sheet
{
    Box paper;     ///< In the layout's units; empty when the file does not define it.
    Box printable; ///< The paper without its margins.
    double unitsPerMillimetre = 1;
    bool hasPaperLinetypes = true; ///< Dashes in viewports are as long as on the sheet.
    std::vector<SheetViewport> viewports;
};

} // namespace drawing
