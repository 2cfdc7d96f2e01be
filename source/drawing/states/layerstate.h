#pragma once

#include "file/error.h"
#include "layers/layermask.h"

#include <QStringList>

#include <vector>

namespace drawing {

/// One layer as a state stores it. The description is not part of a state.
struct LayerStateLayer
{
    LayerProperties properties;
    bool frozenInCurrentViewport = false;
};

bool operator==(const LayerStateLayer& a, const LayerStateLayer& b);

/// A named set of saved layer properties.
struct LayerState
{
    QString name;
    QString description;
    QString currentLayer;
    int mask = kStateEverything; ///< The `LayerStateMask` bits.
    bool fromLayout = false;     ///< Whether it was saved while a layout was shown.
    std::vector<LayerStateLayer> layers;

    /// Whether it came with an external reference; the name of such a state begins with the
    /// reference's name and a `|`.
    bool isFromReference() const { return name.contains(QLatin1Char('|')); }
};

bool operator==(const LayerState& a, const LayerState& b);

/// How to restore a state.
struct LayerStateRestore
{
    int mask = kStateEverything;
    bool turnOthersOff = false; ///< Turns off the layers that the state does not contain.
    /// In a layout, sets colours, linetypes and the like as overrides in the current viewport and
    /// leaves the layers' own properties unchanged.
    bool viewportOverrides = false;
};

} // namespace drawing
