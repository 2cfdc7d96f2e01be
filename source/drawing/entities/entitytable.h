#pragma once

#include "entities.h"
#include "nameinterner.h"

#include <QHash>

#include <string_view>
#include <vector>

namespace drawing {

/// A place outside the entities where a layer is named: where the value begins.
struct LayerNamePlace
{
    qint64 value = 0;
    LayerId layer = LayerId::None;
};

/// Entities, blocks and names of layers as they are met in the file. Names are kept as spelled in
/// `layerSpellings`; a `LayerId` here is the number of a spelling.
struct EntityIndex
{
    std::vector<Block> blocks; ///< Their names are left empty.
    std::vector<Tag> blockNames;
    std::vector<Entity> entities;
    /// For each entity where its layer name stands, counted from its begin; 0 when it names none.
    std::vector<quint32> layerNameAt;
    std::vector<LayerNamePlace> blockLayers; ///< Of BLOCK and ENDBLK.
    std::vector<qint64> xdataNames;          ///< Where the values of the 1003 groups begin.
    NameInterner layerSpellings;
};

/// An entity that changed its layer, lost what it had of its own, or went.
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

/// The entities of a drawing, and the definitions that they stand in.
class EntityTable
{
public:
    void load(std::vector<Entity> entities, std::vector<quint32> layerNameAt,
        std::vector<Block> blocks, std::vector<LayerNamePlace> namePlaces);

    const std::vector<Entity>& all() const { return m_entities; }
    const Entity& operator[](size_t entity) const { return m_entities[entity]; }
    size_t size() const { return m_entities.size(); }
    const std::vector<Block>& blocks() const { return m_blocks; }
    /// Index of a definition, by name without regard to letter case; -1 when there is none.
    int block(const QString& name) const;
    /// Whether an entity stands in a block definition and not in a layout.
    bool isInBlock(const Entity& entity) const;
    /// For each entity the one it follows as a vertex, an attribute or an end mark; itself where it
    /// stands alone.
    std::vector<int> owners() const;
    /// Where the entity names its layer; -1 where it does not.
    qint64 layerName(size_t entity) const;
    /// Where layers are named outside the entities' own group: BLOCK, ENDBLK and XDATA.
    const std::vector<LayerNamePlace>& namePlaces() const { return m_namePlaces; }

    // Changes belong to the open step.
    void setLayer(size_t entity, LayerId layer);
    void remove(size_t entity);
    /// Marks an entity as taking these from its layer.
    void dropOwn(size_t entity, OwnProperties properties);
    const std::vector<EntityChange>& changes() const { return m_changes; }
    std::vector<EntityChange> takeChanges();
    void apply(const std::vector<EntityChange>& changes, bool forward);

private:
    void change(size_t entity, const EntityChange::State& after);

    std::vector<Entity> m_entities;
    std::vector<quint32> m_layerNameAt;
    std::vector<Block> m_blocks;
    QHash<QString, int> m_blockByName; ///< By folded name.
    std::vector<LayerNamePlace> m_namePlaces;
    std::vector<EntityChange> m_changes;
};

} // namespace drawing
