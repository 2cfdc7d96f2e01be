#pragma once

#include "error.h"
#include "layermask.h"

#include <QStringList>

#include <vector>

namespace drawing {

class Drawing;

/// One layer as a state holds it. The description is not part of a state.
struct LayerStateLayer
{
    LayerProperties properties;
    bool frozenInCurrentViewport = false;
};

bool operator==(const LayerStateLayer& a, const LayerStateLayer& b);

/// The saved properties of layers under a name.
struct LayerState
{
    QString name;
    QString description;
    QString currentLayer;
    int mask = kStateEverything; ///< `LayerStateMask` bits.
    bool fromLayout = false;     ///< Saved while a layout was shown.
    std::vector<LayerStateLayer> layers;

    /// States that came with an external reference carry its name before a `|`.
    bool isFromReference() const { return name.contains(QLatin1Char('|')); }
};

bool operator==(const LayerState& a, const LayerState& b);

/// The layers of the drawing as they are now; in a layout also which of them its current viewport
/// hides.
LayerState captureLayerState(const Drawing& drawing, const QString& name);

/// Whether restoring the state, over its own mask, would change nothing. Layers the state does not
/// hold do not count; one the drawing lacks does. What a viewport hides counts in layouts, for
/// states saved in one.
bool isSameAsDrawing(const LayerState& state, const Drawing& drawing);

/// How a state is restored.
struct LayerStateRestore
{
    int mask = kStateEverything;
    bool turnOthersOff = false; ///< Layers that the state does not hold.
    /// In a layout: colours, linetypes and the like are wanted for its current viewport alone, the
    /// layers keep theirs.
    bool viewportOverrides = false;
};

/// Restores `state` within the open step; returns a sentence for each thing that could not be.
QStringList restoreLayerState(
    Drawing& drawing, const LayerState& state, const LayerStateRestore& how);

/// Drops what the drawing cannot use: layers it lacks, second mentions of a layer. Returns the
/// names of the layers it lacks.
QStringList dropUnknownLayers(LayerState& state, const Drawing& drawing);

} // namespace drawing
