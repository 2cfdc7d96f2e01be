#pragma once

#include "entityeditsbytes.h"
#include "layers/layertable.h"

namespace drawing {

class LayerReplacements;

/// A flag for each layer by its id.
using LayerMarks = std::vector<char>;

/// What is on a layer, and where it goes. The rest is filled in when it went.
struct ContentMove
{
    LayerId from = LayerId::None;
    LayerId to = LayerId::None; ///< May be the same layer: then the entities stay on it.
    int moved = 0;
    int leftInBlocks = 0;
    bool isEmptied = true; ///< Nothing is left on `from`, parts of entities included.
};

struct ContentRules
{
    bool inBlocks = false; ///< What stands in block definitions goes too, not only in layouts.
    OwnProperties byLayer; ///< What entities that go take from their layer from then on.
};

/// The edits that touch entities, each in one pass over them.
class EntityEdits
{
public:
    EntityEdits(DrawingFile& file, EntityTable& entities, LayerTable& layers)
        : m_file(file),
          m_entities(entities),
          m_layers(layers)
    {
    }

    /// The targets must be there. Returns how many entities came from another layer.
    int move(const std::vector<int>& entities, LayerId target);
    void merge(const std::vector<LayerId>& sources, LayerId target);
    void removeOn(const std::vector<LayerId>& layers);
    /// Moves the contents of layers, all at once: an entity, or a part of one, goes by the layer
    /// that it was on before. The layers must be there, and each be the source of one move.
    void moveContents(std::vector<ContentMove>& moves, const ContentRules& rules);
    /// What names a layer that got another name, or went, names what became of it.
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
    std::vector<int> m_counts; ///< Entities come and gone, by layer id.
};

} // namespace drawing
