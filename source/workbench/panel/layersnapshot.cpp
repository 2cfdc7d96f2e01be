#include "layersnapshot.h"

#include <algorithm>

namespace {

LayerSnapshot::Differences difference(const drawing::Layer& a, const drawing::Layer& b)
{
    LayerSnapshot::Differences found;
    if (a.properties.name != b.properties.name ||
        a.properties.description != b.properties.description)
        found |= LayerSnapshot::Names;
    if (a.entityCount != b.entityCount || a.properties != b.properties)
        found |= LayerSnapshot::Values;
    return found;
}

bool isSameInViewport(
    const std::vector<drawing::LayerInViewport>& a, const std::vector<drawing::LayerInViewport>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
        [](const drawing::LayerInViewport& one, const drawing::LayerInViewport& other) {
            return one.layer == other.layer && one.shown == other.shown;
        });
}

} // namespace

LayerSnapshot::LayerSnapshot(const drawing::Drawing* drawing)
{
    if (!drawing)
        return;
    m_layers = drawing->layers();
    m_current = drawing->currentLayer();
    m_hasViewport = drawing->checkViewport().has_value();
    m_frozen = drawing->frozenInViewport();
    m_overrides = drawing->overriddenInViewport();
    int last = -1;
    for (const drawing::Layer& layer : m_layers)
        last = std::max(last, static_cast<int>(layer.id));
    m_places.assign(static_cast<size_t>(last + 1), -1);
    for (int at = 0; at < size(); ++at)
        m_places[static_cast<size_t>((*this)[at].id)] = at;
}

LayerSnapshot::Differences LayerSnapshot::differencesFrom(const LayerSnapshot& before) const
{
    const auto isSameLayer = [](const drawing::Layer& a, const drawing::Layer& b) {
        return a.id == b.id;
    };
    const bool isSameList = std::equal(m_layers.begin(), m_layers.end(), before.m_layers.begin(),
        before.m_layers.end(), isSameLayer);
    Differences found;
    if (!isSameList)
        found |= List;
    for (int at = 0; isSameList && at < size(); ++at)
        found |= difference(before[at], (*this)[at]);
    if (before.m_current != m_current || before.m_hasViewport != m_hasViewport ||
        before.m_frozen != m_frozen || !isSameInViewport(before.m_overrides, m_overrides))
        found |= Values;
    return found;
}

int LayerSnapshot::find(drawing::LayerId id) const
{
    const auto at = static_cast<size_t>(static_cast<int>(id));
    return id != drawing::LayerId::None && at < m_places.size() ? m_places[at] : -1;
}

bool LayerSnapshot::isFrozenInViewport(int at) const
{
    return std::binary_search(m_frozen.begin(), m_frozen.end(), (*this)[at].id);
}

const drawing::LayerProperties& LayerSnapshot::inViewport(int at) const
{
    const drawing::LayerId id = (*this)[at].id;
    const auto found = std::lower_bound(m_overrides.begin(), m_overrides.end(), id,
        [](const drawing::LayerInViewport& shown, drawing::LayerId wanted) {
            return shown.layer < wanted;
        });
    return found != m_overrides.end() && found->layer == id ? found->shown : (*this)[at].properties;
}
