#include "canvasview.h"

#include <algorithm>

namespace {

// Within these limits a double can distinguish pixels, and an int can count them.
constexpr double kSmallestScale = 1e-12;
constexpr double kLargestScale = 1e9;

} // namespace

QPointF CanvasView::toDrawing(const QPointF& pixel) const
{
    return {m_center.x() + (pixel.x() - m_size.width() * 0.5) / m_scale,
        m_center.y() - (pixel.y() - m_size.height() * 0.5) / m_scale};
}

drawing::Box CanvasView::boxOf(const QRect& pixels) const
{
    const QRectF exact(pixels); // Its right and bottom edges are exact, unlike those of QRect.
    drawing::Box box;
    box.add(toDrawing(exact.topLeft()));
    box.add(toDrawing(exact.bottomRight()));
    return box;
}

void CanvasView::fit(const drawing::Box& box)
{
    constexpr double kMargin = 0.05;
    constexpr double kEmptyExtent = 100;
    const double width = box.isEmpty() ? kEmptyExtent : box.width();
    const double height = box.isEmpty() ? kEmptyExtent : box.height();
    m_center = box.isEmpty() ? QPointF() : box.center();
    const double pixelsX = std::max(1, m_size.width()) * (1 - 2 * kMargin);
    const double pixelsY = std::max(1, m_size.height()) * (1 - 2 * kMargin);
    if (width <= 0 && height <= 0)
        m_scale = 1;
    else if (width * pixelsY > height * pixelsX)
        m_scale = pixelsX / width;
    else
        m_scale = pixelsY / height;
    m_scale = std::clamp(m_scale, kSmallestScale, kLargestScale);
}

void CanvasView::zoomAt(const QPointF& pixel, double factor)
{
    const QPointF fixed = toDrawing(pixel);
    m_scale = std::clamp(m_scale * factor, kSmallestScale, kLargestScale);
    m_center += fixed - toDrawing(pixel);
}

void CanvasView::pan(const QPointF& pixels)
{
    m_center += QPointF(-pixels.x(), pixels.y()) / m_scale;
}
