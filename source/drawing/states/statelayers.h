#pragma once

#include "layerstate.h"

namespace drawing {

class LayerEdits;
class LayerTable;
class LayoutTable;
class PlotStyles;
class ViewportLayers;

/// The parts of a drawing that a layer state is captured from.
struct StateSource
{
    const LayerTable& layers;
    const LayoutTable& layouts;
    const ViewportLayers& viewports;
};

/// The parts of a drawing that a layer state is restored to.
struct StateTarget
{
    const LayerTable& layers;
    const LayoutTable& layouts;
    const PlotStyles& plotStyles;
    ViewportLayers& viewports;
    LayerEdits& edits;
};

// The overloads for `Drawing` document these functions.
LayerState captureLayerState(const StateSource& source, const QString& name);
bool isSameAsDrawing(const LayerState& state, const StateSource& source);
QStringList restoreLayerState(
    const StateTarget& target, const LayerState& state, const LayerStateRestore& how);
QStringList dropUnknownLayers(LayerState& state, const LayerTable& layers);

} // namespace drawing
