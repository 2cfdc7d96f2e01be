#pragma once

#include "drawing.h"

#include <QString>

#include <vector>

/// Entities of one kind, in one place of the drawing, on the given layers.
struct LayerUse
{
    QString kind;
    QString place;             ///< Model space, a layout, or a block definition.
    int block = -1;            ///< The block definition; -1 for model space and layouts.
    std::vector<int> entities; ///< Entity indices in ascending order.
};

namespace layeruses {

/// What is on these layers, sorted by descending frequency. Subentities are left out.
std::vector<LayerUse> find(
    const drawing::Drawing& drawing, const std::vector<drawing::LayerId>& layers);
/// The entities that make a use visible on the canvas: the used entities themselves, or the
/// references, at any depth, to the block that contains them.
std::vector<int> shownBy(const drawing::Drawing& drawing, const LayerUse& use);
/// For each of the layers the reasons why it cannot be purged; no reasons when it can.
std::vector<QStringList> reasonsToStay(
    const drawing::Drawing& drawing, const std::vector<drawing::LayerId>& layers);

} // namespace layeruses
