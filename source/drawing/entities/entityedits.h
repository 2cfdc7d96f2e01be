#pragma once

#include "entityeditsbytes.h"
#include "layers/layertable.h"

namespace drawing {

class LayerReplacements;

/// One flag per layer; the index is the layer's id.
using LayerMarks = std::vector<char>;

/// A request to move the contents of one layer. The move fills in the remaining members.
struct ContentMove
{
    LayerId from = LayerId::None;
    LayerId to = LayerId::None; ///< May equal `from`; the entities then stay on their layer.
    int moved = 0;
    int leftInBlocks = 0;
    bool isEmptied = true; ///< Whether nothing is left on `from`, subentities included.
};

struct ContentRules
{
    /// Also move the contents of block definitions, not only those of layouts.
    bool inBlocks = false;
    /// The properties that moved entities take from their layer from then on.
    OwnProperties byLayer;
};

/// The edits that change entities. Each takes one pass over the entities.
class EntityEdits
{
public:
    EntityEdits(DrawingFile& file, EntityTable& entities, LayerTable& layers)
        : m_file(file),
          m_entities(entities),
          m_layers(layers)
    {
    }

    /// The target layer must exist. Returns how many entities came from another layer.
    int move(const std::vector<int>& entities, LayerId target);
    void merge(const std::vector<LayerId>& sources, LayerId target);
    void removeOn(const std::vector<LayerId>& layers);
    /// Moves the contents of several layers at once. Each entity or subentity moves according to
    /// the layer that it was on before. All layers must exist, and no layer may be the source of
    /// two moves.
    void moveContents(std::vector<ContentMove>& moves, const ContentRules& rules);
    /// Updates references to layers that were renamed, merged or deleted.
    void follow(const LayerReplacements& replacements);

    bool isReferencedInBlocks(const std::vector<LayerId>& layers) const;
    int countBlockReferences(const std::vector<LayerId>& layers) const;

private:
    LayerMarks marks(const std::vector<LayerId>& layers) const;
    std::vector<char> blocksOn(const std::vector<LayerId>& layers) const;
    QByteArray encodedName(LayerId layer) const;
    void put(size_t entity, LayerId target, const QByteArray& name);
    void count(const Entity& entity, LayerId layer, int by);
    void updateCounts();
    void followNames(const LayerReplacements& replacements);
    ByteRange viewportTag(qint64 value) const;

    DrawingFile& m_file;
    EntityTable& m_entities;
    LayerTable& m_layers;
    std::vector<int> m_counts; ///< For each layer id, the entities gained less those lost.
};

} // namespace drawing
