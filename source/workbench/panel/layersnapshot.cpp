#include "layersnapshot.h"

#include "layers/layercopies.h"

#include <algorithm>

namespace {

LayerSnapshot::Differences difference(const drawing::Layer& a, const drawing::Layer& b)
{
    if (drawing::isSame(a, b))
        return LayerSnapshot::None;
    LayerSnapshot::Differences found = LayerSnapshot::Values;
    if (a.properties.name != b.properties.name ||
        a.properties.description != b.properties.description)
        found |= LayerSnapshot::Names;
    return found;
}

const std::vector<drawing::Layer>& layersOf(const drawing::Drawing* drawing)
{
    static const std::vector<drawing::Layer> none;
    return drawing ? drawing->layers() : none;
}

} // namespace

bool LayerSnapshot::hasListOf(const drawing::Drawing* drawing) const
{
    const std::vector<drawing::Layer>& now = layersOf(drawing);
    return std::equal(m_layers.begin(), m_layers.end(), now.begin(), now.end(),
        [](const drawing::Layer& a, const drawing::Layer& b) { return a.id == b.id; });
}

LayerSnapshot::Differences LayerSnapshot::follow(const drawing::Drawing* drawing)
{
    const std::vector<drawing::Layer>& now = layersOf(drawing);
    Differences found;
    if (!hasListOf(drawing)) {
        found |= List;
        m_layers = now;
        numberPlaces();
    }
    for (size_t at = 0; at < now.size(); ++at) {
        const Differences here = difference(m_layers[at], now[at]);
        if (here)
            m_layers[at] = now[at];
        found |= here;
    }
    Surroundings around;
    if (drawing)
        around = {drawing->currentLayer(), drawing->checkViewport().has_value(),
            drawing->frozenInViewport(), drawing->overriddenInViewport()};
    if (!isSame(around, m_around))
        found |= Values;
    m_around = std::move(around);
    return found;
}

bool LayerSnapshot::isSame(const Surroundings& a, const Surroundings& b)
{
    return a.current == b.current && a.hasViewport == b.hasViewport && a.frozen == b.frozen &&
           std::equal(a.overrides.begin(), a.overrides.end(), b.overrides.begin(),
               b.overrides.end(),
               [](const drawing::LayerInViewport& one, const drawing::LayerInViewport& other) {
                   return one.layer == other.layer && one.shown == other.shown;
               });
}

void LayerSnapshot::numberPlaces()
{
    int last = -1;
    for (const drawing::Layer& layer : m_layers)
        last = std::max(last, static_cast<int>(layer.id));
    m_places.assign(static_cast<size_t>(last + 1), -1);
    for (int at = 0; at < size(); ++at)
        m_places[static_cast<size_t>((*this)[at].id)] = at;
}

int LayerSnapshot::find(drawing::LayerId id) const
{
    const auto at = static_cast<size_t>(static_cast<int>(id));
    return id != drawing::LayerId::None && at < m_places.size() ? m_places[at] : -1;
}

bool LayerSnapshot::isFrozenInViewport(int at) const
{
    return std::binary_search(m_around.frozen.begin(), m_around.frozen.end(), (*this)[at].id);
}

const drawing::LayerProperties& LayerSnapshot::inViewport(int at) const
{
    const drawing::LayerId id = (*this)[at].id;
    const auto found = std::lower_bound(m_around.overrides.begin(), m_around.overrides.end(), id,
        [](const drawing::LayerInViewport& shown, drawing::LayerId wanted) {
            return shown.layer < wanted;
        });
    return found != m_around.overrides.end() && found->layer == id ? found->shown
                                                                   : (*this)[at].properties;
}
