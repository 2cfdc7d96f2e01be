#include "entityedits.h"

#include "entityeditsremoval.h"
#include "file/owntags.h"
#include "layers/layerreplacements.h"

#include <algorithm>

namespace drawing {

LayerMarks EntityEdits::marks(const std::vector<LayerId>& layers) const
{
    LayerMarks marks(static_cast<size_t>(m_layers.entryCount()));
    for (const LayerId layer : layers) {
        if (m_layers.isValid(layer))
            marks[static_cast<size_t>(layer)] = true;
    }
    return marks;
}

/// For each block, whether its definition contains anything on one of these layers. Blocks of
/// layouts do not count.
std::vector<char> EntityEdits::blocksOn(const std::vector<LayerId>& layers) const
{
    const LayerMarks isOn = marks(layers);
    std::vector<char> blocks(m_entities.blocks().size());
    for (const Entity& entity : m_entities.all()) {
        if (!entity.removed && m_entities.isInBlock(entity) &&
            isOn[static_cast<size_t>(entity.layer)])
            blocks[static_cast<size_t>(entity.block)] = true;
    }
    return blocks;
}

QByteArray EntityEdits::encodedName(LayerId layer) const
{
    return m_file.encoded(m_layers.entry(layer).layer.properties.name);
}

void EntityEdits::put(size_t entity, LayerId target, const QByteArray& name)
{
    const Entity& moved = m_entities[entity];
    count(moved, moved.layer, -1);
    count(moved, target, 1);
    writeLayerName(m_file, m_entities, entity, name);
    m_entities.setLayer(entity, target);
}

void EntityEdits::count(const Entity& entity, LayerId layer, int by)
{
    m_counts.resize(static_cast<size_t>(m_layers.entryCount()));
    if (!entity.subEntity)
        m_counts[static_cast<size_t>(layer)] += by;
}

void EntityEdits::updateCounts()
{
    for (size_t id = 0; id < m_counts.size(); ++id) {
        if (m_counts[id] == 0)
            continue;
        LayerEntry entry = m_layers.entry(static_cast<LayerId>(id));
        entry.layer.entityCount += m_counts[id];
        m_layers.change(static_cast<LayerId>(id), entry);
    }
    m_counts.clear();
}

int EntityEdits::move(const std::vector<int>& entities, LayerId target)
{
    const std::vector<Entity>& all = m_entities.all();
    const std::vector<int> owners = m_entities.owners();
    std::vector<char> isWanted(all.size());
    for (const int entity : entities) {
        if (entity >= 0 && static_cast<size_t>(entity) < all.size())
            isWanted[static_cast<size_t>(owners[static_cast<size_t>(entity)])] = true;
    }
    const QByteArray name = encodedName(target);
    int moved = 0;
    LayerId from = LayerId::None; // The former layer of the owner.
    for (size_t i = 0; i < all.size(); ++i) {
        const auto owner = static_cast<size_t>(owners[i]);
        if (owner == i)
            from = all[i].layer;
        if (!isWanted[owner] || all[i].removed || all[i].layer != from || from == target)
            continue;
        moved += owner == i ? 1 : 0;
        put(i, target, name);
    }
    updateCounts();
    return moved;
}

void EntityEdits::merge(const std::vector<LayerId>& sources, LayerId target)
{
    const LayerMarks isSource = marks(sources);
    const QByteArray name = encodedName(target);
    for (size_t i = 0; i < m_entities.size(); ++i) {
        if (!m_entities[i].removed && isSource[static_cast<size_t>(m_entities[i].layer)])
            put(i, target, name);
    }
    updateCounts();
}

void EntityEdits::removeOn(const std::vector<LayerId>& layers)
{
    EntityRemoval removal(m_file, m_entities);
    removal.choose(marks(layers), m_layers.zero());
    for (const EntityRemoval::Move& move : removal.moves())
        put(static_cast<size_t>(move.entity), move.target, encodedName(move.target));
    for (const int index : removal.entities()) {
        const Entity& entity = m_entities[static_cast<size_t>(index)];
        count(entity, entity.layer, -1);
    }
    removal.run();
    updateCounts();
}

void EntityEdits::moveContents(std::vector<ContentMove>& moves, const ContentRules& rules)
{
    std::vector<int> moveOf(static_cast<size_t>(m_layers.entryCount()), -1);
    std::vector<QByteArray> names;
    for (const ContentMove& move : moves) {
        moveOf[static_cast<size_t>(move.from)] = static_cast<int>(names.size());
        names.push_back(encodedName(move.to));
    }
    for (size_t i = 0; i < m_entities.size(); ++i) {
        const Entity& entity = m_entities[i];
        const int at = moveOf[static_cast<size_t>(entity.layer)];
        if (at < 0 || entity.removed)
            continue;
        ContentMove& move = moves[static_cast<size_t>(at)];
        const int counted = entity.subEntity ? 0 : 1;
        if (!rules.inBlocks && m_entities.isInBlock(entity)) {
            move.leftInBlocks += counted;
            move.isEmptied = false;
            continue;
        }
        move.moved += counted;
        if (move.to != move.from)
            put(i, move.to, names[static_cast<size_t>(at)]);
        forceByLayer(m_file, m_entities, i, rules.byLayer);
    }
    updateCounts();
}

void EntityEdits::follow(const LayerReplacements& replacements)
{
    for (size_t i = 0; i < m_entities.size(); ++i) {
        const LayerReplacements::Replacement& replacement = replacements.of(m_entities[i].layer);
        if (replacement.name.isNull() || m_entities[i].removed)
            continue;
        writeLayerName(m_file, m_entities, i, replacement.name);
        if (replacement.layer != m_entities[i].layer)
            m_entities.setLayer(i, replacement.layer);
    }
    followNames(replacements);
}

void EntityEdits::followNames(const LayerReplacements& replacements)
{
    for (const LayerNamePlace& place : m_entities.namePlaces()) {
        const QByteArray& name = replacements.of(place.layer).name;
        if (name.isNull())
            continue;
        const bool isRemoved = !m_layers.entry(place.layer).present;
        const ByteRange listed = isRemoved ? viewportTag(place.value) : ByteRange();
        // The journal refuses this inside a range that was removed or rewritten as a whole, where
        // nothing needs renaming.
        if (listed.isNull())
            m_file.journal().replace(m_file.valueRange(place.value), name);
        else
            m_file.journal().replace(listed, {});
    }
}

/// The tag with this value if it belongs to a viewport. The XDATA of a viewport list its frozen
/// layers, so another layer must not take the place of a deleted one there.
ByteRange EntityEdits::viewportTag(qint64 value) const
{
    const std::vector<Entity>& all = m_entities.all();
    const auto next = std::upper_bound(all.begin(), all.end(), value,
        [](qint64 offset, const Entity& entity) { return offset < entity.begin; });
    if (next == all.begin() || std::prev(next)->end <= value ||
        std::prev(next)->kind != EntityKind::Viewport)
        return {};
    TagReader tags = m_file.tags(std::prev(next)->range());
    Tag tag;
    while (tags.next(tag)) {
        if (tag.valueRange().begin == value)
            return tag.range();
    }
    return {};
}

bool EntityEdits::isReferencedInBlocks(const std::vector<LayerId>& layers) const
{
    const std::vector<char> blocks = blocksOn(layers);
    return std::find(blocks.begin(), blocks.end(), true) != blocks.end();
}

int EntityEdits::countBlockReferences(const std::vector<LayerId>& layers) const
{
    const std::vector<char> blocks = blocksOn(layers);
    int references = 0;
    for (const Entity& entity : m_entities.all()) {
        if (entity.kind != EntityKind::Insert || entity.removed)
            continue;
        const Tag name = findOwn(m_file.tags(entity.range()), group::kName);
        const int block = name.isNull() ? -1 : m_entities.block(m_file.decoded(name.trimmed()));
        references += block >= 0 && blocks[static_cast<size_t>(block)] ? 1 : 0;
    }
    return references;
}

} // namespace drawing
