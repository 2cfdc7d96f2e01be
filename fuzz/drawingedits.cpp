#include "drawingedits.h"

#include "fuzzing.h"

using namespace drawing;

namespace fuzz {

namespace {

constexpr std::size_t kLongestName = 12;

LayerId anyLayer(const Drawing& drawing, FuzzedDataProvider& bytes)
{
    const auto& layers = drawing.layers();
    if (layers.empty())
        return LayerId::None;
    return layers[bytes.ConsumeIntegralInRange<std::size_t>(0, layers.size() - 1)].id;
}

LayerProperties anyProperties(FuzzedDataProvider& bytes)
{
    LayerProperties properties;
    properties.name = takeText(bytes, kLongestName);
    properties.description = takeText(bytes, kLongestName);
    properties.off = bytes.ConsumeBool();
    properties.colorIndex = bytes.ConsumeIntegralInRange(0, 256);
    properties.lineweight = bytes.PickValueInArray(kLineweights);
    properties.transparency = bytes.ConsumeIntegralInRange(-1, 91);
    if (bytes.ConsumeBool())
        properties.trueColor = bytes.ConsumeIntegralInRange<quint32>(0, 0x1000000);
    return properties;
}

EditReach reachOf(bool isDone)
{
    return isDone ? EditReach::Anywhere : EditReach::Nothing;
}

EditReach toggle(Drawing& drawing, FuzzedDataProvider& bytes)
{
    const Layer* const layer = drawing.layer(anyLayer(drawing, bytes));
    if (!layer)
        return EditReach::Nothing;
    LayerProperties properties = layer->properties;
    bool LayerProperties::*const flags[] = {
        &LayerProperties::off, &LayerProperties::frozen, &LayerProperties::locked};
    properties.*bytes.PickValueInArray(flags) ^= true;
    const bool isDone = drawing.setLayerProperties(layer->id, properties).has_value();
    return isDone ? EditReach::LayerRecord : EditReach::Nothing;
}

EditReach rewrite(Drawing& drawing, FuzzedDataProvider& bytes)
{
    const LayerId layer = anyLayer(drawing, bytes);
    return layer == LayerId::None
               ? EditReach::Nothing
               : reachOf(drawing.setLayerProperties(layer, anyProperties(bytes)).has_value());
}

EditReach add(Drawing& drawing, FuzzedDataProvider& bytes)
{
    return reachOf(drawing.addLayer(anyProperties(bytes)).has_value());
}

EditReach makeCurrent(Drawing& drawing, FuzzedDataProvider& bytes)
{
    return reachOf(drawing.setCurrentLayer(anyLayer(drawing, bytes)).has_value());
}

EditReach remove(Drawing& drawing, FuzzedDataProvider& bytes)
{
    return reachOf(drawing.removeLayer(anyLayer(drawing, bytes)).has_value());
}

EditReach move(Drawing& drawing, FuzzedDataProvider& bytes)
{
    std::vector<int> chosen;
    const int count = static_cast<int>(drawing.entities().size());
    for (int i = bytes.ConsumeIntegralInRange(0, 4); i > 0; --i)
        chosen.push_back(bytes.ConsumeIntegralInRange(-1, count));
    return reachOf(drawing.moveEntities(chosen, anyLayer(drawing, bytes)).has_value());
}

EditReach merge(Drawing& drawing, FuzzedDataProvider& bytes)
{
    const std::vector<LayerId> sources{anyLayer(drawing, bytes), anyLayer(drawing, bytes)};
    return reachOf(drawing.mergeLayers(sources, anyLayer(drawing, bytes)).has_value());
}

EditReach erase(Drawing& drawing, FuzzedDataProvider& bytes)
{
    const std::vector<LayerId> layers{anyLayer(drawing, bytes), anyLayer(drawing, bytes)};
    drawing.isReferencedInBlocks(layers);
    drawing.countBlockReferences(layers);
    return reachOf(drawing.deleteLayers(layers).has_value());
}

EditReach keepState(Drawing& drawing, FuzzedDataProvider& bytes)
{
    const LayerState state = captureLayerState(drawing, takeText(bytes, kLongestName));
    return reachOf(drawing.putLayerStates({state}).has_value());
}

EditReach restoreState(Drawing& drawing, FuzzedDataProvider& bytes)
{
    const std::vector<LayerState> states = drawing.layerStates();
    if (states.empty())
        return EditReach::Nothing;
    const auto which = bytes.ConsumeIntegralInRange<std::size_t>(0, states.size() - 1);
    isSameAsDrawing(states[which], drawing);
    restoreLayerState(
        drawing, states[which], {bytes.ConsumeIntegral<int>(), bytes.ConsumeBool(), false});
    return EditReach::Anywhere;
}

EditReach changeState(Drawing& drawing, FuzzedDataProvider& bytes)
{
    const QStringList names = drawing.layerStateNames();
    if (names.isEmpty())
        return EditReach::Nothing;
    const QString& name = names[bytes.ConsumeIntegralInRange(0, names.size() - 1)];
    if (bytes.ConsumeBool())
        return reachOf(drawing.removeLayerStates({name}).has_value());
    return reachOf(drawing.renameLayerState(name, takeText(bytes, kLongestName)).has_value());
}

EditReach changeSpace(Drawing& drawing, FuzzedDataProvider& bytes)
{
    return reachOf(drawing.setModelSpace(bytes.ConsumeBool()).has_value());
}

constexpr EditReach (*kEdits[])(Drawing&, FuzzedDataProvider&) = {toggle, rewrite, add, makeCurrent,
    remove, move, merge, erase, keepState, restoreState, changeState, changeSpace};

} // namespace

EditReach editDrawing(Drawing& drawing, FuzzedDataProvider& bytes)
{
    return bytes.PickValueInArray(kEdits)(drawing, bytes);
}

} // namespace fuzz
