#include "canvashighlight.h"

#include "canvaspick.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <utility>

namespace {

/// Dashes take time, so more vertices than this are drawn as solid lines.
constexpr std::size_t kMostDashed = 50000;
/// The geometry of this many entities can be found without a noticeable delay.
constexpr std::size_t kFewEntities = 2000;
constexpr QRgb kBright = 0xff3d9bff; // Visible on black and on white.

void paintPart(QPainter& painter, const QPolygonF& part)
{
    if (part.size() == 1)
        painter.drawRect(QRectF(part[0] - QPointF(2, 2), QSizeF(4, 4)));
    else if (!part.isEmpty())
        painter.drawPolyline(part);
}

} // namespace

CanvasHighlight::CanvasHighlight(ScenePointer scene, std::vector<int> entities)
    : m_scene(std::move(scene)),
      m_entities(std::move(entities))
{
    if (m_entities.size() <= kFewEntities)
        std::call_once(m_isCollected, [this] { collect(); });
}

bool CanvasHighlight::isCheap() const
{
    constexpr std::size_t kCheapVertices = 20000;
    return m_entities.size() <= kFewEntities && m_vertices <= kCheapVertices;
}

void CanvasHighlight::collect()
{
    collectOf(*m_scene, nullptr);
    for (const ShownScene::Window& window : m_scene->windows())
        collectOf(*window.scene, &window);
}

void CanvasHighlight::collectOf(const ShownScene& scene, const ShownScene::Window* window)
{
    struct Collector
    {
        CanvasHighlight& marks;
        Space space;

        void operator()(const ShownScene::Group& group, const drawing::Primitive& primitive)
        {
            space.primitives.push_back({&group.geometry, &primitive});
            marks.m_vertices += primitive.count;
        }
        void operator()(const ShownScene::Group&, const drawing::TextRun& run)
        {
            space.texts.push_back(&run);
        }
    };
    Collector collector{*this, {window, {}, {}}};
    scene.forEachPieceOf(m_entities, [&collector](const ShownScene::Group& group,
                                         const auto& piece) { collector(group, piece); });
    if (!collector.space.primitives.empty() || !collector.space.texts.empty())
        m_spaces.push_back(std::move(collector.space));
}

void CanvasHighlight::paint(QPainter& painter, const CanvasView& view, const QRect& area,
    const std::atomic<bool>& isDropped)
{
    std::call_once(m_isCollected, [this] { collect(); });
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
    const QRect& area, const std::atomic<bool>& isDropped)
{
    const drawing::Box visible = map.boxAround(area.adjusted(-3, -3, 3, 3));
    for (const Place<drawing::Primitive>& place : space.primitives) {
        if (isDropped)
            return;
        if (place.piece->bounds.intersects(visible))
            paintPrimitive(painter, place, map);
    }
    for (const drawing::TextRun* run : space.texts) {
        QPolygonF outline;
        for (const QPointF& corner : textOutline(*run))
            outline.append(map.toPixel(corner));
        if (run->bounds.intersects(visible))
            painter.drawPolyline(outline);
    }
}

void CanvasHighlight::paintPrimitive(
    QPainter& painter, const Place<drawing::Primitive>& place, const PlaneMap& map)
{
    const drawing::Primitive& primitive = *place.piece;
    QPolygonF part;
    for (quint32 i = primitive.first; i < primitive.first + primitive.count; ++i) {
        const QPointF& vertex = place.group->vertices[i];
        if (!std::isnan(vertex.x())) {
            part.append(map.toPixel(vertex));
            continue;
        }
        paintPart(painter, part);
        part.resize(0);
    }
    paintPart(painter, part);
}
