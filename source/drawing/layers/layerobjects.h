#pragma once

#include "drawingdata.h"

namespace drawing {

/// What happened to layers in a step, as the objects of a drawing need to know it.
struct LayerRenames
{
    QHash<QString, QString> newNames; ///< By the folded old name.
    QSet<QString> removedNames;       ///< Folded.
    QHash<QString, QString> heirs;    ///< Of merged layers: names by the folded old name.
    QSet<quint64> removedHandles;
};

/// Makes the objects that name layers follow: layer states, layer filters, lists of layers.
void updateLayerObjects(DrawingData& data, const LayerRenames& renames);

/// Takes out the object with this handle and all that it owns as a dictionary.
void removeOwnedObjects(DrawingData& data, quint64 handle);

} // namespace drawing
