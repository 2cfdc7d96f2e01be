#include "layerstate.h"

#include <tuple>

namespace drawing {

bool operator==(const LayerStateLayer& a, const LayerStateLayer& b)
{
    return a.properties == b.properties && a.frozenInCurrentViewport == b.frozenInCurrentViewport;
}

bool operator==(const LayerState& a, const LayerState& b)
{
    return std::tie(a.name, a.description, a.currentLayer, a.mask, a.fromLayout, a.layers) ==
           std::tie(b.name, b.description, b.currentLayer, b.mask, b.fromLayout, b.layers);
}

} // namespace drawing
