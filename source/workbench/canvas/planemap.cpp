#include "planemap.h"

#include <cmath>

PlaneMap::PlaneMap(const CanvasView& view)
    : m_anchor(view.center()),
      m_pixel(view.size().width() * 0.5, view.size().height() * 0.5),
      m_x(view.scale(), 0),
      m_y(0, -view.scale()),
      m_scale(view.scale())
{
}

PlaneMap PlaneMap::through(const drawing::SheetViewport& viewport) const
{
    const auto flat = [](const drawing::Vec3& vector) { return QPointF(vector.x, vector.y); };
    const QPointF x = flat(viewport.toSheet.mapDirection({1, 0, 0}));
    const QPointF y = flat(viewport.toSheet.mapDirection({0, 1, 0}));
    const QPointF middle = boundsOf(viewport).center();
    const QPointF way = middle - flat(viewport.toSheet.map({}));
    const double area = x.x() * y.y() - x.y() * y.x();
    PlaneMap map;
    if (area != 0)
        map.m_anchor =
            QPointF(way.x() * y.y() - way.y() * y.x(), way.y() * x.x() - way.x() * x.y()) / area;
    map.m_pixel = toPixel(middle);
    map.m_x = ofDirection(x);
    map.m_y = ofDirection(y);
    map.m_scale = m_scale * viewport.scale;
    return map;
}

QPointF PlaneMap::toPlane(const QPointF& pixel) const
{
    const QPointF way = pixel - m_pixel;
    const double area = m_x.x() * m_y.y() - m_x.y() * m_y.x();
    return m_anchor +
           QPointF(way.x() * m_y.y() - way.y() * m_y.x(), way.y() * m_x.x() - way.x() * m_x.y()) /
               area;
}

drawing::Box PlaneMap::boxAround(const QRectF& pixels) const
{
    drawing::Box box;
    for (const QPointF& corner :
        {pixels.topLeft(), pixels.topRight(), pixels.bottomLeft(), pixels.bottomRight()})
        box.add(toPlane(corner));
    return box;
}

drawing::Box boundsOf(const drawing::SheetViewport& viewport)
{
    drawing::Box box;
    for (const QPointF& corner : viewport.outline)
        box.add(corner);
    return box;
}

QPolygonF outlineOf(const drawing::SheetViewport& viewport, const PlaneMap& sheet)
{
    QPolygonF outline;
    for (const QPointF& corner : viewport.outline)
        outline.append(sheet.toPixel(corner));
    return outline;
}
