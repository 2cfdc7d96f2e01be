#pragma once

#include "geometry/geometrymath.h"

#include <QPointF>
#include <QRect>

/// The part of a drawing that a widget shows, given by its centre and the pixels per drawing unit.
class CanvasView
{
public:
    QPointF center() const { return m_center; }
    double scale() const { return m_scale; }
    QSize size() const { return m_size; }
    void setSize(const QSize& size) { m_size = size; }

    QPointF toScreen(const QPointF& point) const
    {
        return {(point.x() - m_center.x()) * m_scale + m_size.width() * 0.5,
            (m_center.y() - point.y()) * m_scale + m_size.height() * 0.5};
    }
    QPointF toDrawing(const QPointF& pixel) const;
    drawing::Box visibleBox() const { return boxOf(QRect({0, 0}, m_size)); }
    drawing::Box boxOf(const QRect& pixels) const; ///< The part of the drawing in these pixels.

    /// Shows the whole box with a margin. For an empty box shows a hundred units around the origin.
    void fit(const drawing::Box& box);
    /// Scales by `factor` and keeps the point of the drawing under `pixel` in place.
    void zoomAt(const QPointF& pixel, double factor);
    void pan(const QPointF& pixels);

    friend bool operator==(const CanvasView& a, const CanvasView& b)
    {
        return a.m_center == b.m_center && a.m_scale == b.m_scale && a.m_size == b.m_size;
    }

private:
    QPointF m_center;
    double m_scale = 1;
    QSize m_size;
};
