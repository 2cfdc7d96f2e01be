#pragma once

#include "canvasview.h"
#include "planemap.h"
#include "scene.h"

#include <atomic>
#include <mutex>
#include <vector>

class QPainter;

/// Marks selected entities with bright dashes on top of the drawing. The geometry of a few entities
/// is found at once, that of many by the first thread that paints.
class CanvasHighlight
{
public:
    /// The entities must be given in ascending order.
    CanvasHighlight(ScenePointer scene, std::vector<int> entities);
    /// Draws everything in `area` of the view until `isDropped` becomes true. The painter must be
    /// clipped to the area.
    void paint(QPainter& painter, const CanvasView& view, const QRect& area,
        const std::atomic<bool>& isDropped);
    /// Whether painting takes less than a frame.
    bool isCheap() const;

private:
    template <class Piece>
    struct Place
    {
        const drawing::GeometryGroup* group;
        const Piece* piece;
    };
    /// What is to be marked of a sheet or of model space, or as it is seen through a viewport.
    struct Space
    {
        const ShownScene::Window* window = nullptr; ///< Null: it is seen as it is.
        std::vector<Place<drawing::Primitive>> primitives;
        std::vector<const drawing::TextRun*> texts;
    };

    void collect();
    void collectOf(const ShownScene& scene, const ShownScene::Window* window);
    static void paintSpace(QPainter& painter, const Space& space, const PlaneMap& map,
        const QRect& area, const std::atomic<bool>& isDropped);
    static void paintPrimitive(
        QPainter& painter, const Place<drawing::Primitive>& place, const PlaneMap& map);

    ScenePointer m_scene; ///< Keeps the groups and the windows alive.
    std::vector<int> m_entities;
    std::once_flag m_isCollected;
    std::vector<Space> m_spaces;
    std::size_t m_vertices = 0;
};
