#include "entitytable.h"

#include "file/symbolname.h"

namespace drawing {

namespace {

EntityChange::State stateOf(const Entity& entity)
{
    return {entity.layer, entity.removed, entity.own};
}

} // namespace

void EntityTable::load(std::vector<Entity> entities, std::vector<quint32> layerNameAt,
    std::vector<Block> blocks, std::vector<LayerNamePlace> namePlaces)
{
    m_entities = std::move(entities);
    m_layerNameAt = std::move(layerNameAt);
    m_blocks = std::move(blocks);
    m_namePlaces = std::move(namePlaces);
    for (size_t i = 0; i < m_blocks.size(); ++i)
        m_blockByName.insert(foldedName(m_blocks[i].name), static_cast<int>(i));
}

int EntityTable::block(const QString& name) const
{
    return m_blockByName.value(foldedName(name), -1);
}

bool EntityTable::isInBlock(const Entity& entity) const
{
    return entity.block >= 0 && !m_blocks[static_cast<size_t>(entity.block)].layout;
}

std::vector<int> EntityTable::owners() const
{
    std::vector<int> owners(m_entities.size());
    for (size_t i = 0; i < m_entities.size(); ++i) {
        const bool follows =
            i > 0 && m_entities[i].subEntity && m_entities[i].block == m_entities[i - 1].block;
        owners[i] = follows ? owners[i - 1] : static_cast<int>(i);
    }
    return owners;
}

qint64 EntityTable::layerName(size_t entity) const
{
    const quint32 at = m_layerNameAt[entity];
    return at == 0 ? -1 : m_entities[entity].begin + at;
}

void EntityTable::change(size_t entity, const EntityChange::State& after)
{
    Entity& changed = m_entities[entity];
    m_changes.push_back({static_cast<int>(entity), stateOf(changed), after});
    changed.layer = after.layer;
    changed.removed = after.removed;
    changed.own = after.own;
}

void EntityTable::setLayer(size_t entity, LayerId layer)
{
    const Entity& now = m_entities[entity];
    change(entity, {layer, now.removed, now.own});
}

void EntityTable::remove(size_t entity)
{
    const Entity& now = m_entities[entity];
    change(entity, {now.layer, true, now.own});
}

void EntityTable::dropOwn(size_t entity, OwnProperties properties)
{
    const Entity& now = m_entities[entity];
    if (now.own & properties)
        change(entity, {now.layer, now.removed, now.own & ~properties});
}

std::vector<EntityChange> EntityTable::takeChanges()
{
    std::vector<EntityChange> changes;
    changes.swap(m_changes);
    return changes;
}

void EntityTable::apply(const std::vector<EntityChange>& changes, bool forward)
{
    const auto put = [this](int index, const EntityChange::State& state) {
        Entity& entity = m_entities[static_cast<size_t>(index)];
        entity.layer = state.layer;
        entity.removed = state.removed;
        entity.own = state.own;
    };
    // The order matters because an entity may have changed more than once.
    if (forward) {
        for (const EntityChange& change : changes)
            put(change.entity, change.after);
    } else {
        for (auto change = changes.rbegin(); change != changes.rend(); ++change)
            put(change->entity, change->before);
    }
}

} // namespace drawing
