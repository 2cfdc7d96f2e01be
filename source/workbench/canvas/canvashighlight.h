#pragma once

#include "canvasview.h"
#include "scene.h"

#include <atomic>

class QPainter;

/// Marks selected entities with bright dashes on top of the drawing.
class CanvasHighlight
{
public:
    /// Finds the geometry of these entities.
    CanvasHighlight(ScenePointer scene, const std::vector<int>& entities);
    /// Draws everything in `area` of the view until `isDropped` becomes true. The painter must be
    /// clipped to the area.
    void paint(QPainter& painter, const CanvasView& view, const QRect& area,
        const std::atomic<bool>& isDropped) const;
    std::size_t vertexCount() const { return m_vertices; }

private:
    struct Piece
    {
        const drawing::GeometryGroup* group;
        std::size_t index;
    };

    void paintPrimitive(QPainter& painter, const Piece& piece, const CanvasView& view) const;

    ScenePointer m_scene; ///< Keeps the groups alive.
    std::vector<Piece> m_primitives;
    std::vector<Piece> m_texts;
    std::size_t m_vertices = 0;
};
