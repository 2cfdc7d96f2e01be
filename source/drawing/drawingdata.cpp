#include "drawingdata.h"

#include "file/drawingtexts.h"

#include <algorithm>
#include <tuple>

namespace drawing {

bool DrawingData::State::operator==(const State& other) const
{
    return std::tie(file, linetypes, layouts, layerStates, current) ==
           std::tie(other.file, other.linetypes, other.layouts, other.layerStates, other.current);
}

bool DrawingData::Changes::isEmpty() const
{
    return edits.empty() && layers.empty() && entities.empty() && before == after;
}

DrawingData::State DrawingData::state() const
{
    return {
        file.state(), linetypes.state(), layouts.state(), layerStates.state(), layers.current()};
}

void DrawingData::setState(const State& state)
{
    file.state() = state.file;
    linetypes.state() = state.linetypes;
    layouts.state() = state.layouts;
    layerStates.state() = state.layerStates;
    layers.setCurrent(state.current);
}

bool DrawingData::hasChanges() const
{
    return file.journal().hasChanges() || !(m_before == state());
}

DrawingData::Changes DrawingData::take()
{
    return {file.journal().takeChanges(), layers.takeChanges(), entities.takeChanges(), m_before,
        state()};
}

void DrawingData::apply(const Changes& changes, bool forward)
{
    file.journal().apply(changes.edits, forward, file.pace());
    layers.apply(changes.layers, forward);
    entities.apply(changes.entities, forward);
    setState(forward ? changes.after : changes.before);
}

void DrawingData::followLayers()
{
    if (LayerReplacements(layers, file.codec()).isEmpty())
        return;
    copies.follow();
    const LayerReplacements replacements(layers, file.codec());
    entityEdits.follow(replacements);
    if (const QByteArray& name = replacements.of(layers.current()).name; !name.isNull())
        file.writeVariable(HeaderVariable::CurrentLayer, name);
    viewports.follow(replacements);
    layerStates.follow(replacements);
    mappings.follow(replacements);
    const QSet<quint64> understood =
        layerObjects.follow(replacements) + layerStates.records() + mappings.records();
    noteOpaque(file, entities, replacements, understood, leftOut);
}

Expected<int> DrawingData::moveEntities(const std::vector<int>& chosen, LayerId target)
{
    if (const auto checked = layerEdits.checkTarget(target); !checked)
        return tl::make_unexpected(checked.error());
    return entityEdits.move(chosen, target);
}

Expected<void> DrawingData::mergeLayers(const std::vector<LayerId>& sources, LayerId target)
{
    if (auto checked = layerEdits.checkTarget(target).and_then(
            [&] { return layerEdits.checkLeaving(sources); });
        !checked)
        return checked;
    if (std::find(sources.begin(), sources.end(), target) != sources.end())
        return refusal(
            Texts::tr("图层“%1”不能合并到它自己。").arg(layers.layer(target)->properties.name));
    entityEdits.merge(sources, target);
    for (const LayerId source : sources)
        layerEdits.drop(source, target);
    return {};
}

Expected<void> DrawingData::deleteLayers(const std::vector<LayerId>& chosen)
{
    if (auto checked = layerEdits.checkLeaving(chosen); !checked)
        return checked;
    const std::vector<LayerId> all = copies.withCopies(chosen);
    entityEdits.removeOn(all);
    for (const LayerId layer : all)
        layerEdits.drop(layer, LayerId::None);
    return {};
}

} // namespace drawing
