#include "entityedits.h"

#include "drawingtexts.h"
#include "entityeditsremoval.h"
#include "symboltables.h"

#include <algorithm>

namespace drawing {

namespace {

tl::unexpected<Error> refusal(const QString& text)
{
    return tl::make_unexpected(Error{text, 0, false});
}

/// Whether something in a block definition, and not only in a layout, is on a marked layer; a flag
/// for each block.
std::vector<char> blocksOn(const DrawingData& data, const std::vector<char>& isOn)
{
    std::vector<char> blocks(data.index.blocks.size());
    for (const Entity& entity : data.index.entities) {
        if (entity.block >= 0 && !entity.removed && isOn[static_cast<size_t>(entity.layer)])
            blocks[static_cast<size_t>(entity.block)] = true;
    }
    for (size_t i = 0; i < blocks.size(); ++i)
        blocks[i] = blocks[i] && !data.index.blocks[i].layout;
    return blocks;
}

} // namespace

bool isInBlock(const DrawingData& data, const Entity& entity)
{
    return entity.block >= 0 && !data.index.blocks[static_cast<size_t>(entity.block)].layout;
}

std::vector<int> ownersOf(const std::vector<Entity>& entities)
{
    std::vector<int> owners(entities.size());
    for (size_t i = 0; i < entities.size(); ++i) {
        const bool follows =
            i > 0 && entities[i].subEntity && entities[i].block == entities[i - 1].block;
        owners[i] = follows ? owners[i - 1] : static_cast<int>(i);
    }
    return owners;
}

std::vector<char> layerMarks(const DrawingData& data, const std::vector<LayerId>& layers)
{
    std::vector<char> marks(static_cast<size_t>(data.layers.entryCount()));
    for (const LayerId layer : layers) {
        if (data.layers.isValid(layer))
            marks[static_cast<size_t>(layer)] = true;
    }
    return marks;
}

Expected<void> EntityEdits::checkTarget(LayerId target) const
{
    const Layer* layer = m_data.layers.layer(target);
    if (!layer)
        return refusal(Texts::tr("目标图层已不存在。"));
    if (layer->dependsOnReference)
        return refusal(
            Texts::tr("图层“%1”依赖外部参照，不能作为目标图层。").arg(layer->properties.name));
    return {};
}

/// Layer 0, the current layer and those of external references stay.
Expected<void> EntityEdits::checkLeaving(const std::vector<LayerId>& layers) const
{
    for (const LayerId id : layers) {
        const Layer* layer = m_data.layers.layer(id);
        if (!layer)
            return refusal(Texts::tr("图层已不存在。"));
        const QString& name = layer->properties.name;
        if (name == QLatin1String("0"))
            return refusal(Texts::tr("图层“0”不能删除。"));
        if (id == m_data.state.current)
            return refusal(Texts::tr("当前图层“%1”不能删除。").arg(name));
        if (layer->dependsOnReference)
            return refusal(Texts::tr("图层“%1”依赖外部参照，不能删除。").arg(name));
    }
    return {};
}

void EntityEdits::put(size_t entity, LayerId target, const QByteArray& name)
{
    const Entity& moved = m_data.index.entities[entity];
    count(moved, moved.layer, -1);
    count(moved, target, 1);
    writeLayerName(m_data, entity, name);
    m_data.changeEntity(entity, target, false);
}

void EntityEdits::count(const Entity& entity, LayerId layer, int by)
{
    m_counts.resize(static_cast<size_t>(m_data.layers.entryCount()));
    if (!entity.subEntity)
        m_counts[static_cast<size_t>(layer)] += by;
}

void EntityEdits::settleCounts()
{
    for (size_t id = 0; id < m_counts.size(); ++id) {
        if (m_counts[id] == 0)
            continue;
        LayerEntry entry = m_data.layers.entry(static_cast<LayerId>(id));
        entry.layer.entityCount += m_counts[id];
        m_data.layers.change(static_cast<LayerId>(id), entry);
    }
    m_counts.clear();
}

void EntityEdits::dropRecord(LayerId layer, LayerId heir)
{
    LayerEntry entry = m_data.layers.entry(layer);
    if (!entry.present)
        return; // Named twice.
    SymbolTables(m_data).removeLayerRecord(entry);
    entry.present = false;
    entry.heir = heir;
    m_data.layers.change(layer, entry);
}

Expected<int> EntityEdits::move(const std::vector<int>& entities, LayerId target)
{
    if (const auto checked = checkTarget(target); !checked)
        return tl::make_unexpected(checked.error());
    const std::vector<Entity>& all = m_data.index.entities;
    const std::vector<int> owners = ownersOf(all);
    std::vector<char> isWanted(all.size());
    for (const int entity : entities) {
        if (entity >= 0 && static_cast<size_t>(entity) < all.size())
            isWanted[static_cast<size_t>(owners[static_cast<size_t>(entity)])] = true;
    }
    const QByteArray name = m_data.codec.encode(m_data.layers.entry(target).layer.properties.name);
    int moved = 0;
    LayerId from = LayerId::None; // Where the owner was.
    for (size_t i = 0; i < all.size(); ++i) {
        const auto owner = static_cast<size_t>(owners[i]);
        if (owner == i)
            from = all[i].layer;
        if (!isWanted[owner] || all[i].removed || all[i].layer != from || from == target)
            continue;
        moved += owner == i ? 1 : 0;
        put(i, target, name);
    }
    settleCounts();
    return moved;
}

Expected<void> EntityEdits::merge(const std::vector<LayerId>& sources, LayerId target)
{
    if (auto checked = checkTarget(target).and_then([&] { return checkLeaving(sources); });
        !checked)
        return checked;
    const std::vector<char> isSource = layerMarks(m_data, sources);
    const QString& name = m_data.layers.entry(target).layer.properties.name;
    if (isSource[static_cast<size_t>(target)])
        return refusal(Texts::tr("图层“%1”不能合并到它自己。").arg(name));
    const QByteArray encoded = m_data.codec.encode(name);
    for (size_t i = 0; i < m_data.index.entities.size(); ++i) {
        const Entity& entity = m_data.index.entities[i];
        if (!entity.removed && isSource[static_cast<size_t>(entity.layer)])
            put(i, target, encoded);
    }
    settleCounts();
    for (const LayerId source : sources)
        dropRecord(source, target);
    return {};
}

Expected<void> EntityEdits::removeLayers(const std::vector<LayerId>& layers)
{
    if (auto checked = checkLeaving(layers); !checked)
        return checked;
    EntityRemoval removal(m_data);
    removal.choose(layerMarks(m_data, layers));
    for (const EntityRemoval::Move& move : removal.moves())
        put(static_cast<size_t>(move.entity), move.target,
            m_data.codec.encode(m_data.layers.entry(move.target).layer.properties.name));
    for (const int index : removal.entities()) {
        const Entity& entity = m_data.index.entities[static_cast<size_t>(index)];
        count(entity, entity.layer, -1);
    }
    removal.run();
    settleCounts();
    for (const LayerId layer : layers)
        dropRecord(layer, LayerId::None);
    return {};
}

void EntityEdits::moveContents(std::vector<ContentMove>& moves, const ContentRules& rules)
{
    std::vector<int> moveOf(static_cast<size_t>(m_data.layers.entryCount()), -1);
    std::vector<QByteArray> names;
    for (const ContentMove& move : moves) {
        moveOf[static_cast<size_t>(move.from)] = static_cast<int>(names.size());
        names.push_back(m_data.codec.encode(m_data.layers.entry(move.to).layer.properties.name));
    }
    for (size_t i = 0; i < m_data.index.entities.size(); ++i) {
        const Entity& entity = m_data.index.entities[i];
        const int at = moveOf[static_cast<size_t>(entity.layer)];
        if (at < 0 || entity.removed)
            continue;
        ContentMove& move = moves[static_cast<size_t>(at)];
        const int counted = entity.subEntity ? 0 : 1;
        if (!rules.inBlocks && isInBlock(m_data, entity)) {
            move.leftInBlocks += counted;
            move.isEmptied = false;
            continue;
        }
        move.moved += counted;
        if (move.to != move.from)
            put(i, move.to, names[static_cast<size_t>(at)]);
        forceByLayer(m_data, i, rules.byLayer);
    }
    settleCounts();
}

bool EntityEdits::isReferencedInBlocks(const std::vector<LayerId>& layers) const
{
    const std::vector<char> blocks = blocksOn(m_data, layerMarks(m_data, layers));
    return std::find(blocks.begin(), blocks.end(), true) != blocks.end();
}

int EntityEdits::countBlockReferences(const std::vector<LayerId>& layers) const
{
    const std::vector<char> blocks = blocksOn(m_data, layerMarks(m_data, layers));
    int references = 0;
    for (const Entity& entity : m_data.index.entities) {
        if (entity.kind != EntityKind::Insert || entity.removed)
            continue;
        TagReader tags = m_data.tags(entity.range());
        Tag tag;
        while (tags.next(tag) && tag.code != 2) {
        }
        const QString name = tag.code == 2 ? m_data.codec.decode(tag.trimmed()) : QString();
        const int block = m_data.blockByName.value(name.toCaseFolded(), -1);
        references += block >= 0 && blocks[static_cast<size_t>(block)] ? 1 : 0;
    }
    return references;
}

} // namespace drawing
