#include "staterecords.h"
#include "hostextras.h"

#include "drawing.h"
#include "namerule.h"
#include "recordprovider.h"
#include "statekeys.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using drawing::LayerState;
using drawing::LayerStateLayer;
using vnsi::LayerRecord;
using vnsi::VnJsonPtr;

namespace staterecords {

VnJsonPtr make(const LayerState& state)
{
    VnJsonPtr list = hostextras::createArray(static_cast<int>(state.layers.size()));
    for (const LayerStateLayer& layer : state.layers) {
        drawing::Layer shown;
        shown.properties = layer.properties;
        const VnJsonPtr node = layerrecords::Provider::full().make(shown, false);
        LayerRecord(node).setCurrentOfState(
            vnsi::isSameName(layer.properties.name, state.currentLayer));
        hostextras::append(list, node);
    }
    return list;
}

void takeRemoved(LayerState& state, const VnJsonPtr& records)
{
    QSet<QString> removed;
    for (int i = 0, count = records.ArrayCount(); i < count; ++i) {
        if (LayerRecord(records(i)).flag(vnsi::statekey::kIsRemoved))
            removed.insert(vnsi::foldedName(layerrecords::nameOf(records(i))));
    }
    const auto isRemoved = [&removed](const LayerStateLayer& layer) {
        return removed.contains(vnsi::foldedName(layer.properties.name));
    };
    auto& layers = state.layers;
    layers.erase(std::remove_if(layers.begin(), layers.end(), isRemoved), layers.end());
}

void takeEdited(LayerState& state, const VnJsonPtr& records, const drawing::Drawing& drawing)
{
    QHash<QString, LayerStateLayer> before;
    for (const LayerStateLayer& layer : state.layers)
        before.insert(vnsi::foldedName(layer.properties.name), layer);
    state.layers.clear();
    for (int i = 0, count = records.ArrayCount(); i < count; ++i) {
        const LayerRecord record(records(i));
        const QString name = layerrecords::nameOf(records(i));
        if (name.isEmpty() || record.flag(vnsi::statekey::kIsRemoved))
            continue;
        const auto held = before.constFind(vnsi::foldedName(name));
        const drawing::Layer* known = drawing.findLayer(name);
        LayerStateLayer layer;
        if (held != before.constEnd())
            layer = *held;
        else if (known)
            layer.properties = known->properties;
        layer.properties = layerrecords::Provider::full().read(records(i), layer.properties);
        layer.properties.description.clear(); // The description is not part of a state.
        if (record.isCurrentOfState())
            state.currentLayer = name;
        state.layers.push_back(std::move(layer));
    }
}

} // namespace staterecords
