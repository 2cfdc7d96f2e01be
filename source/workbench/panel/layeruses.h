#pragma once

#include "drawing.h"

#include <QString>

#include <vector>

/// Entities of one kind, in one place of the drawing, on the layers asked about.
struct LayerUse
{
    QString kind;
    QString place;             ///< Model space, a layout, or a block definition.
    int block = -1;            ///< The definition, layouts left out; -1 for none.
    std::vector<int> entities; ///< By their indices, ascending.
};

namespace layeruses {

/// What is on these layers, the most frequent first. What belongs to another entity is left out.
std::vector<LayerUse> find(
    const drawing::Drawing& drawing, const std::vector<drawing::LayerId>& layers);
/// The entities by which the canvas shows a use: its own, or the references, however nested, to the
/// block it is in.
std::vector<int> shownBy(const drawing::Drawing& drawing, const LayerUse& use);
/// Why each of these layers cannot be purged, in their order; none where it can.
std::vector<QStringList> reasonsToStay(
    const drawing::Drawing& drawing, const std::vector<drawing::LayerId>& layers);

} // namespace layeruses
