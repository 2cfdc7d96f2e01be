#pragma once

#include "canvasview.h"
#include "geometry/sheet.h"

#include <QPolygonF>
#include <QRectF>

/// An affine map from a plane of a drawing to pixels, either directly by a view or by a view
/// through a viewport.
class PlaneMap
{
public:
    PlaneMap() = default;
    explicit PlaneMap(const CanvasView& view);
    /// For a map of a sheet, the map of model space through one of the sheet's viewports.
    PlaneMap through(const drawing::SheetViewport& viewport) const;

    QPointF toPixel(const QPointF& point) const { return m_pixel + ofDirection(point - m_anchor); }
    QPointF toPlane(const QPointF& pixel) const;
    QPointF ofDirection(const QPointF& way) const { return m_x * way.x() + m_y * way.y(); }
    /// The number of pixels per unit of the plane, averaged over all directions.
    double scale() const { return m_scale; }
    /// The part of the plane that may be visible in these pixels.
    drawing::Box boxAround(const QRectF& pixels) const;

private:
    // The map is anchored in the visible area, because sums far from the origin lose their last
    // digits.
    QPointF m_anchor;
    QPointF m_pixel;
    QPointF m_x{1, 0};
    QPointF m_y{0, -1};
    double m_scale = 1;
};

/// The bounds of a viewport's outline.
drawing::Box boundsOf(const drawing::SheetViewport& viewport);
/// The cut in pixels, by the map of the sheet.
QPolygonF outlineOf(const drawing::SheetViewport& viewport, const PlaneMap& sheet);
