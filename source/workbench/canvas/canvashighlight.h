#pragma once

#include "canvasview.h"
#include "scene.h"

#include <atomic>

class QPainter;

/// Marks selected entities with bright dashes over the drawing.
class CanvasHighlight
{
public:
    /// Looks up what is to be drawn for these entities.
    CanvasHighlight(ScenePointer scene, const std::vector<int>& entities);
    /// Draws what lies in `area` of the view, to which the painter must be clipped, until
    /// `isDropped` turns true.
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

    ScenePointer m_scene; ///< Keeps the groups.
    std::vector<Piece> m_primitives;
    std::vector<Piece> m_texts;
    std::size_t m_vertices = 0;
};
