#include "layercopies.h"

namespace drawing {

bool isSame(const Layer& a, const Layer& b)
{
    return a.id == b.id && a.dependsOnReference == b.dependsOnReference &&
           a.entityCount == b.entityCount && a.properties == b.properties;
}

void followLayers(std::vector<Layer>& kept, const std::vector<Layer>& layers)
{
    if (kept.size() != layers.size()) {
        kept = layers;
        return;
    }
    for (size_t at = 0; at < layers.size(); ++at) {
        if (!isSame(kept[at], layers[at]))
            kept[at] = layers[at];
    }
}

} // namespace drawing
