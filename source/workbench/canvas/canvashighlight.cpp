#include "canvashighlight.h"

#include "canvaspick.h"
#include "entityset.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <utility>

namespace {

/// Dashes take time, so more vertices than this are drawn as solid lines.
constexpr std::size_t kMostDashed = 50000;
constexpr QRgb kBright = 0xff3d9bff; // Visible on black and on white.

void paintPart(QPainter& painter, const QPolygonF& part)
{
    if (part.size() == 1)
        painter.drawRect(QRectF(part[0] - QPointF(2, 2), QSizeF(4, 4)));
    else if (!part.isEmpty())
        painter.drawPolyline(part);
}

} // namespace

CanvasHighlight::CanvasHighlight(ScenePointer scene, const std::vector<int>& entities)
    : m_scene(std::move(scene))
{
    if (entities.empty())
        return;
    collect(*m_scene, nullptr, entities);
    for (const ShownScene::Window& window : m_scene->windows())
        collect(*window.scene, &window, entities);
}

void CanvasHighlight::collect(
    const ShownScene& scene, const ShownScene::Window* window, const std::vector<int>& entities)
{
    const EntitySet selected(entities);
    Space space;
    space.window = window;
    scene.forEachGroup([&](const ShownScene::Group& shown) {
        const drawing::GeometryGroup& group = shown.geometry;
        for (std::size_t at = 0; at < group.primitives.size(); ++at) {
            if (!selected.contains(group.primitives[at].entity))
                continue;
            space.primitives.push_back({&group, at});
            m_vertices += group.primitives[at].count;
        }
        for (std::size_t at = 0; at < group.texts.size(); ++at) {
            if (selected.contains(group.texts[at].entity))
                space.texts.push_back({&group, at});
        }
    });
    if (!space.primitives.empty() || !space.texts.empty())
        m_spaces.push_back(std::move(space));
}

void CanvasHighlight::paint(QPainter& painter, const CanvasView& view, const QRect& area,
    const std::atomic<bool>& isDropped) const
{
    QPen pen(QColor(kBright), m_vertices < kMostDashed ? 2 : 1);
    if (m_vertices < kMostDashed)
        pen.setDashPattern({4, 3});
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const PlaneMap map(view);
    for (const Space& space : m_spaces) {
        if (!space.window) {
            paintSpace(painter, space, map, area, isDropped);
            continue;
        }
        const drawing::SheetViewport& viewport = space.window->viewport;
        QPainterPath clip;
        clip.addPolygon(outlineOf(viewport, map));
        painter.save();
        painter.setClipPath(clip, Qt::IntersectClip);
        paintSpace(painter, space, map.through(viewport), area, isDropped);
        painter.restore();
    }
}

void CanvasHighlight::paintSpace(QPainter& painter, const Space& space, const PlaneMap& map,
    const QRect& area, const std::atomic<bool>& isDropped) const
{
    const drawing::Box visible = map.boxAround(area.adjusted(-3, -3, 3, 3));
    for (const Piece& piece : space.primitives) {
        if (isDropped)
            return;
        if (piece.group->primitives[piece.index].bounds.intersects(visible))
            paintPrimitive(painter, piece, map);
    }
    for (const Piece& piece : space.texts) {
        const drawing::TextRun& run = piece.group->texts[piece.index];
        QPolygonF outline;
        for (const QPointF& corner : textOutline(run))
            outline.append(map.toPixel(corner));
        if (run.bounds.intersects(visible))
            painter.drawPolyline(outline);
    }
}

void CanvasHighlight::paintPrimitive(QPainter& painter, const Piece& piece, const PlaneMap& map)
{
    const drawing::Primitive& primitive = piece.group->primitives[piece.index];
    QPolygonF part;
    for (quint32 i = primitive.first; i < primitive.first + primitive.count; ++i) {
        const QPointF& vertex = piece.group->vertices[i];
        if (!std::isnan(vertex.x())) {
            part.append(map.toPixel(vertex));
            continue;
        }
        paintPart(painter, part);
        part.resize(0);
    }
    paintPart(painter, part);
}
