#pragma once

#include "file/error.h"
#include "layers/layermask.h"

#include <QStringList>

#include <vector>

namespace drawing {

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

/// How a state is restored.
struct LayerStateRestore
{
    int mask = kStateEverything;
    bool turnOthersOff = false; ///< Layers that the state does not hold.
    /// In a layout: colours, linetypes and the like are wanted for its current viewport alone, the
    /// layers keep theirs.
    bool viewportOverrides = false;
};

} // namespace drawing
