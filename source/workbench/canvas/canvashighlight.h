#pragma once

#include "canvasview.h"
#include "geometry/geometry.h"
#include "grouplook.h"

class QPainter;

/// Marks selected entities with bright dashes over the drawing.
class CanvasHighlight
{
public:
    /// Looks up what is to be drawn for these entities, given in ascending order.
    void collect(const drawing::Geometry& geometry, const std::vector<GroupLook>& looks,
        const std::vector<int>& entities);
    /// Draws it; `geometry` is the one given last.
    void paint(QPainter& painter, const drawing::Geometry& geometry, const CanvasView& view) const;

private:
    struct Piece
    {
        std::size_t group;
        std::size_t index;
    };

    std::vector<Piece> m_primitives;
    std::vector<Piece> m_texts;
    std::size_t m_vertices = 0;
};
