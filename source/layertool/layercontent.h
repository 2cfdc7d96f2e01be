#pragma once

#include "entities/ownproperties.h"
#include "layers/layer.h"

#include <array>
#include <vector>

namespace drawing {
class Drawing;
}

namespace layertool {

/// The properties that entities can define themselves, in the order of `LayerContent::own`.
inline constexpr drawing::OwnProperty kOwnProperties[] = {drawing::OwnProperty::Color,
    drawing::OwnProperty::Linetype, drawing::OwnProperty::Lineweight,
    drawing::OwnProperty::Transparency};

/// Counts of the entities on a layer, by their places and by the properties that they define
/// themselves.
struct LayerContent
{
    int model = 0;
    int layouts = 0;
    int blocks = 0;
    std::vector<int> inBlocks; ///< The indices of the block definitions, each once.
    /// How many entities define each property themselves.
    std::array<int, std::size(kOwnProperties)> own = {};

    int placed() const { return model + layouts; }
};

/// The present contents of all layers of a drawing, counted in one pass over its entities.
class LayerContents
{
public:
    explicit LayerContents(const drawing::Drawing& drawing);
    const LayerContent& of(drawing::LayerId layer) const;

private:
    std::vector<LayerContent> m_all; ///< The index is the layer id.
};

} // namespace layertool
