#include "canvashighlight.h"

#include "canvaspick.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// Dashes cost time; more than these are drawn solid.
constexpr std::size_t kMostDashed = 50'000;
constexpr QRgb kBright = 0xff3d9bff; // Stands out on black and on white.

void paintPart(QPainter& painter, const QPolygonF& part)
{
    if (part.size() == 1)
        painter.drawRect(QRectF(part[0] - QPointF(2, 2), QSizeF(4, 4)));
    else if (!part.isEmpty())
        painter.drawPolyline(part);
}

} // namespace

void CanvasHighlight::collect(const drawing::Geometry& geometry,
    const std::vector<GroupLook>& looks, const std::vector<int>& entities)
{
    m_primitives.clear();
    m_texts.clear();
    m_vertices = 0;
    const auto isSelected = [&entities](int entity) {
        return std::binary_search(entities.begin(), entities.end(), entity);
    };
    for (std::size_t i = 0; i < looks.size() && !entities.empty(); ++i) {
        if (!looks[i].visible)
            continue;
        const drawing::GeometryGroup& group = geometry.groups[i];
        for (std::size_t at = 0; at < group.primitives.size(); ++at) {
            if (!isSelected(group.primitives[at].entity))
                continue;
            m_primitives.push_back({i, at});
            m_vertices += group.primitives[at].count;
        }
        for (std::size_t at = 0; at < group.texts.size(); ++at) {
            if (isSelected(group.texts[at].entity))
                m_texts.push_back({i, at});
        }
    }
}

void CanvasHighlight::paint(
    QPainter& painter, const drawing::Geometry& geometry, const CanvasView& view) const
{
    const drawing::Box visible = view.visibleBox();
    QPen pen(QColor(kBright), m_vertices < kMostDashed ? 2 : 1);
    if (m_vertices < kMostDashed)
        pen.setDashPattern({4, 3});
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    QPolygonF part;
    for (const Piece& piece : m_primitives) {
        const drawing::GeometryGroup& group = geometry.groups[piece.group];
        const drawing::Primitive& primitive = group.primitives[piece.index];
        if (!primitive.bounds.intersects(visible))
            continue;
        for (quint32 i = primitive.first; i < primitive.first + primitive.count; ++i) {
            if (!std::isnan(group.vertices[i].x())) {
                part.append(view.toScreen(group.vertices[i]));
                continue;
            }
            paintPart(painter, part);
            part.resize(0);
        }
        paintPart(painter, part);
        part.resize(0);
    }
    for (const Piece& piece : m_texts) {
        const drawing::TextRun& run = geometry.groups[piece.group].texts[piece.index];
        for (const QPointF& corner : textOutline(run))
            part.append(view.toScreen(corner));
        if (run.bounds.intersects(visible))
            painter.drawPolyline(part);
        part.resize(0);
    }
}
