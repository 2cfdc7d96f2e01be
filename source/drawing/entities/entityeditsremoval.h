#pragma once

#include "entitytable.h"
#include "file/drawingfile.h"

namespace drawing {

/// Deletes all entities on certain layers, with everything that only they owned and everything that
/// points at them.
class EntityRemoval
{
public:
    /// A subentity that is kept although its layer is deleted.
    struct Move
    {
        int entity = 0;
        LayerId target = LayerId::None;
    };

    EntityRemoval(DrawingFile& file, EntityTable& entities) : m_file(file), m_entities(entities) {}

    /// Finds out what is deleted together with the marked layers. An entity is deleted with all its
    /// subentities, whatever layers they are on. When an entity stays, its attributes on these
    /// layers are deleted; its vertices and end marks, which it needs, move to its own layer. A
    /// sheet's own viewport is part of the sheet and moves to layer 0, given as `zero`.
    void choose(const std::vector<char>& isLeaving, LayerId zero);
    const std::vector<int>& entities() const { return m_chosen; }
    const std::vector<Move>& moves() const { return m_moves; }
    /// Deletes what `choose` found.
    void run();

private:
    void chooseParts(size_t owner, size_t end, const std::vector<char>& isLeaving);
    void forgetAttributes(size_t reference);

    DrawingFile& m_file;
    EntityTable& m_entities;
    std::vector<int> m_chosen; ///< In ascending order.
    std::vector<Move> m_moves;
    std::vector<int> m_bared; ///< Block references that lose all their attributes.
};

} // namespace drawing
