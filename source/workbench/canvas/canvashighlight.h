#pragma once

#include "canvasview.h"
#include "planemap.h"
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
    /// What is to be marked of a sheet or of model space, or as it is seen through a viewport.
    struct Space
    {
        const ShownScene::Window* window = nullptr; ///< Null: it is seen as it is.
        std::vector<Piece> primitives;
        std::vector<Piece> texts;
    };

    void collect(const ShownScene& scene, const ShownScene::Window* window,
        const std::vector<int>& entities);
    void paintSpace(QPainter& painter, const Space& space, const PlaneMap& map, const QRect& area,
        const std::atomic<bool>& isDropped) const;
    static void paintPrimitive(QPainter& painter, const Piece& piece, const PlaneMap& map);

    ScenePointer m_scene; ///< Keeps the groups and the windows alive.
    std::vector<Space> m_spaces;
    std::size_t m_vertices = 0;
};
