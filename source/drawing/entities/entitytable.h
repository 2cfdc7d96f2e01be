#pragma once

#include "entities.h"
#include "nameinterner.h"

#include <QHash>

#include <string_view>
#include <vector>

namespace drawing {

/// A place outside of entities where a layer's name is written: the offset of the value.
struct LayerNamePlace
{
    qint64 value = 0;
    LayerId layer = LayerId::None;
};

/// The entities, blocks and layer names found while indexing. Layer names are kept exactly as
/// spelled in `layerSpellings`; a `LayerId` in this struct is the number of a spelling.
struct EntityIndex
{
    std::vector<Block> blocks; ///< Without names; these are in `blockNames`.
    std::vector<Tag> blockNames;
    std::vector<Entity> entities;
    /// For each entity the offset of its layer name, relative to its `begin`; 0 when it has none.
    std::vector<quint32> layerNameAt;
    std::vector<LayerNamePlace> blockLayers; ///< Layer names of BLOCK and ENDBLK.
    std::vector<qint64> xdataNames;          ///< File offsets of the values of the 1003 groups.
    NameInterner layerSpellings;
};

/// The change of an entity that moved to another layer, lost own properties or was deleted.
struct EntityChange
{
    struct State
    {
        LayerId layer = LayerId::None;
        bool removed = false;
        OwnProperties own;
    };

    int entity = 0;
    State before;
    State after;
};

/// The entities of a drawing and its block definitions.
class EntityTable
{
public:
    void load(std::vector<Entity> entities, std::vector<quint32> layerNameAt,
        std::vector<Block> blocks, std::vector<LayerNamePlace> namePlaces);

    const std::vector<Entity>& all() const { return m_entities; }
    const Entity& operator[](size_t entity) const { return m_entities[entity]; }
    size_t size() const { return m_entities.size(); }
    const std::vector<Block>& blocks() const { return m_blocks; }
    /// The index of the block definition of this name, ignoring letter case; -1 when there is none.
    int block(const QString& name) const;
    /// Whether an entity is inside a block definition that does not belong to a layout.
    bool isInBlock(const Entity& entity) const;
    /// For each entity the index of the entity that it belongs to as a vertex, attribute or end
    /// mark; its own index when it belongs to none.
    std::vector<int> owners() const;
    /// The file offset of the entity's layer name; -1 when it has none.
    qint64 layerName(size_t entity) const;
    /// The places where layers are named outside of the entities' own groups: in BLOCK, ENDBLK and
    /// XDATA.
    const std::vector<LayerNamePlace>& namePlaces() const { return m_namePlaces; }

    // Edits. They belong to the open step.
    void setLayer(size_t entity, LayerId layer);
    void remove(size_t entity);
    /// Marks these properties of an entity as taken from its layer.
    void dropOwn(size_t entity, OwnProperties properties);
    const std::vector<EntityChange>& changes() const { return m_changes; }
    std::vector<EntityChange> takeChanges();
    void apply(const std::vector<EntityChange>& changes, bool forward);

private:
    void change(size_t entity, const EntityChange::State& after);

    std::vector<Entity> m_entities;
    std::vector<quint32> m_layerNameAt;
    std::vector<Block> m_blocks;
    QHash<QString, int> m_blockByName; ///< The keys are folded names.
    std::vector<LayerNamePlace> m_namePlaces;
    std::vector<EntityChange> m_changes;
};

} // namespace drawing
