#pragma once

#include "entityeditsbytes.h"
#include "error.h"

namespace drawing {

/// For each entity the one it follows as a vertex, an attribute or an end mark; itself where it
/// stands alone.
std::vector<int> ownersOf(const std::vector<Entity>& entities);

/// Whether an entity stands in a block definition and not in a layout.
bool isInBlock(const DrawingData& data, const Entity& entity);

/// A flag for each layer of the drawing by its id, set for these.
std::vector<char> layerMarks(const DrawingData& data, const std::vector<LayerId>& layers);

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
    ByLayerGroups byLayer; ///< What entities that go take from their layer from then on.
};

/// The edits that touch entities, each in one pass over them.
class EntityEdits
{
public:
    explicit EntityEdits(DrawingData& data) : m_data(data) {}

    Expected<int> move(const std::vector<int>& entities, LayerId target);
    Expected<void> merge(const std::vector<LayerId>& sources, LayerId target);
    Expected<void> removeLayers(const std::vector<LayerId>& layers);
    /// Moves the contents of layers, all at once: an entity, or a part of one, goes by the layer
    /// that it was on before. The layers must be there, and each be the source of one move.
    void moveContents(std::vector<ContentMove>& moves, const ContentRules& rules);
    /// Takes out a layer that nothing is on; what names it names its heir then.
    void dropRecord(LayerId layer, LayerId heir);

    bool isReferencedInBlocks(const std::vector<LayerId>& layers) const;
    int countBlockReferences(const std::vector<LayerId>& layers) const;

private:
    Expected<void> checkTarget(LayerId target) const;
    Expected<void> checkLeaving(const std::vector<LayerId>& layers) const;
    void put(size_t entity, LayerId target, const QByteArray& name);
    void count(const Entity& entity, LayerId layer, int by);
    void settleCounts();

    DrawingData& m_data;
    std::vector<int> m_counts; ///< Entities come and gone, by layer id.
};

} // namespace drawing
