#pragma once

#include "layerstate.h"

namespace drawing {

class LayerEdits;
class LayerTable;
class LayoutTable;
class PlotStyles;
class ViewportLayers;

/// What of a drawing a layer state holds.
struct StateSource
{
    const LayerTable& layers;
    const LayoutTable& layouts;
    const ViewportLayers& viewports;
};

/// What of a drawing a layer state is restored to.
struct StateTarget
{
    const LayerTable& layers;
    const LayoutTable& layouts;
    const PlotStyles& plotStyles;
    ViewportLayers& viewports;
    LayerEdits& edits;
};

// As `Drawing` has them.
LayerState captureLayerState(const StateSource& source, const QString& name);
bool isSameAsDrawing(const LayerState& state, const StateSource& source);
QStringList restoreLayerState(
    const StateTarget& target, const LayerState& state, const LayerStateRestore& how);
QStringList dropUnknownLayers(LayerState& state, const LayerTable& layers);

} // namespace drawing
