#pragma once

#include "drawingdata.h"

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

    explicit EntityRemoval(DrawingData& data) : m_data(data) {}

    /// Finds out what goes with the marked layers. An entity takes what follows it along, on
    /// whatever layer that is. Of an entity that stays, attributes on these layers go; vertices and
    /// end marks, which it cannot do without, come to its own layer. A sheet's own viewport is part
    /// of the sheet and comes to layer 0.
    void choose(const std::vector<char>& isLeaving);
    const std::vector<int>& entities() const { return m_entities; }
    const std::vector<Move>& moves() const { return m_moves; }
    /// Takes out what was chosen.
    void run();

private:
    bool isSheetViewport(const Entity& entity) const;
    void chooseParts(size_t owner, size_t end, const std::vector<char>& isLeaving);
    void forgetAttributes(size_t reference);

    DrawingData& m_data;
    std::vector<int> m_entities; ///< Ascending.
    std::vector<Move> m_moves;
    std::vector<int> m_bared; ///< Block references that lost all their attributes.
};

} // namespace drawing
