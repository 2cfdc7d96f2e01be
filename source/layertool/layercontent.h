#pragma once

#include "entities/ownproperties.h"
#include "layers/layer.h"

#include <array>
#include <vector>

namespace drawing {
class Drawing;
}

namespace layertool {

/// The properties that entities may have of their own, in the order of `LayerContent::own`.
inline constexpr drawing::OwnProperty kOwnProperties[] = {drawing::OwnProperty::Color,
    drawing::OwnProperty::Linetype, drawing::OwnProperty::Lineweight,
    drawing::OwnProperty::Transparency};

/// The entities on a layer: how many, where, and what they do not take from it.
struct LayerContent
{
    int model = 0;
    int layouts = 0;
    int blocks = 0;
    std::vector<int> inBlocks; ///< The block definitions, as indices, each once.
    std::array<int, std::size(kOwnProperties)> own = {}; ///< How many have it of their own.

    int placed() const { return model + layouts; }
};

/// The contents of a drawing's layers as they are now, from one pass over its entities.
class LayerContents
{
public:
    explicit LayerContents(const drawing::Drawing& drawing);
    const LayerContent& of(drawing::LayerId layer) const;

private:
    std::vector<LayerContent> m_all; ///< By the layers' ids.
};

} // namespace layertool
