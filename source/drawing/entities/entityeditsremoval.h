#pragma once

#include "entitytable.h"
#include "file/drawingfile.h"

namespace drawing {

/// Takes out the entities on some layers, whole, with all that only they owned and all that points
/// at them.
class EntityRemoval
{
public:
    /// A part that stays though its layer goes.
    struct Move
    {
        int entity = 0;
        LayerId target = LayerId::None;
    };

    EntityRemoval(DrawingFile& file, EntityTable& entities) : m_file(file), m_entities(entities) {}

    /// Finds out what goes with the marked layers. An entity takes what follows it along, on
    /// whatever layer that is. Of an entity that stays, attributes on these layers go; vertices and
    /// end marks, which it cannot do without, come to its own layer. A sheet's own viewport is part
    /// of the sheet and comes to layer 0, which is `zero`.
    void choose(const std::vector<char>& isLeaving, LayerId zero);
    const std::vector<int>& entities() const { return m_chosen; }
    const std::vector<Move>& moves() const { return m_moves; }
    /// Takes out what was chosen.
    void run();

private:
    void chooseParts(size_t owner, size_t end, const std::vector<char>& isLeaving);
    void forgetAttributes(size_t reference);

    DrawingFile& m_file;
    EntityTable& m_entities;
    std::vector<int> m_chosen; ///< Ascending.
    std::vector<Move> m_moves;
    std::vector<int> m_bared; ///< Block references that lost all their attributes.
};

} // namespace drawing
