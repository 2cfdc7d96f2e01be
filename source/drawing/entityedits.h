#pragma once

#include "drawingdata.h"
#include "error.h"

namespace drawing {

/// For each entity the one it follows as a vertex, an attribute or an end mark; itself where it
/// stands alone.
std::vector<int> ownersOf(const std::vector<Entity>& entities);

/// A flag for each layer of the drawing by its id, set for these.
std::vector<char> layerMarks(const DrawingData& data, const std::vector<LayerId>& layers);

/// The edits that touch entities, each in one pass over them.
class EntityEdits
{
public:
    explicit EntityEdits(DrawingData& data) : m_data(data) {}

    Expected<int> move(const std::vector<int>& entities, LayerId target);
    Expected<void> merge(const std::vector<LayerId>& sources, LayerId target);
    Expected<void> removeLayers(const std::vector<LayerId>& layers);

    bool isReferencedInBlocks(const std::vector<LayerId>& layers) const;
    int countBlockReferences(const std::vector<LayerId>& layers) const;

private:
    Expected<void> checkTarget(LayerId target) const;
    Expected<void> checkLeaving(const std::vector<LayerId>& layers) const;
    void put(size_t entity, LayerId target, const QByteArray& name);
    void count(const Entity& entity, LayerId layer, int by);
    void settleCounts();
    void dropRecord(LayerId layer, LayerId heir);

    DrawingData& m_data;
    std::vector<int> m_counts; ///< Entities come and gone, by layer id.
};

} // namespace drawing
