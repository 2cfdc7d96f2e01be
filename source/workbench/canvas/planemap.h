#pragma once

#include "canvasview.h"
#include "geometry/sheet.h"

#include <QRectF>

/// An affine map from a plane of a drawing to pixels: that of a view, or of what a view shows
/// through a viewport.
class PlaneMap
{
public:
    PlaneMap() = default;
    explicit PlaneMap(const CanvasView& view);
    /// From model space, where this is the map of the sheet.
    PlaneMap through(const drawing::SheetViewport& viewport) const;

    QPointF toPixel(const QPointF& point) const { return m_pixel + ofDirection(point - m_anchor); }
    QPointF toPlane(const QPointF& pixel) const;
    QPointF ofDirection(const QPointF& way) const { return m_x * way.x() + m_y * way.y(); }
    /// Pixels that a unit of the plane takes, on the average of its directions.
    double scale() const { return m_scale; }
    /// What of the plane may be seen in these pixels.
    drawing::Box boxAround(const QRectF& pixels) const;

private:
    // Anchored in what is seen, as far from the origin a sum would lose its last digits.
    QPointF m_anchor;
    QPointF m_pixel;
    QPointF m_x{1, 0};
    QPointF m_y{0, -1};
    double m_scale = 1;
};

/// Where the cut of a viewport lies.
drawing::Box boundsOf(const drawing::SheetViewport& viewport);
