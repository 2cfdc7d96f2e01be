#include "canvas.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace {

/// Drawings that take longer are shown as a moved picture while zooming and panning goes on.
constexpr qint64 kFluentMilliseconds = 60;
constexpr int kSettleMilliseconds = 120;
/// Beyond this many vertices smooth lines cost more than they show.
constexpr std::size_t kSmoothVertices = 400'000;

} // namespace

Canvas::Canvas(QWidget* parent) : QWidget(parent)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::CrossCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 150);
    m_settle.setSingleShot(true);
    m_settle.setInterval(kSettleMilliseconds);
    connect(&m_settle, &QTimer::timeout, this, &Canvas::invalidate);
}

void Canvas::setScene(std::shared_ptr<const drawing::Geometry> geometry)
{
    m_geometry = std::move(geometry);
    updateLooks();
}

void Canvas::setLayers(const std::vector<drawing::Layer>& layers)
{
    m_layers = layers;
    updateLooks();
}

void Canvas::setDark(bool dark)
{
    if (m_dark == dark)
        return;
    m_dark = dark;
    updateLooks();
    emit backgroundChanged(dark);
}

void Canvas::updateLooks()
{
    m_looks = m_geometry ? looksOf(*m_geometry, m_layers, m_dark) : std::vector<GroupLook>();
    invalidate();
}

void Canvas::invalidate()
{
    m_stale = true;
    update();
}

drawing::Box Canvas::extents() const
{
    drawing::Box shown;
    drawing::Box all;
    for (std::size_t i = 0; i < m_looks.size(); ++i) {
        const drawing::Box& bounds = m_geometry->groups[i].bounds;
        all.add(bounds);
        if (m_looks[i].visible)
            shown.add(bounds);
    }
    return shown.isEmpty() ? all : shown;
}

void Canvas::zoomToExtents()
{
    m_view.setSize(size());
    m_view.fit(extents());
    m_fitted = true;
    invalidate();
}

void Canvas::viewMoved()
{
    m_fitted = false;
    if (m_renderMilliseconds > kFluentMilliseconds) {
        m_settle.start();
        update();
        return;
    }
    invalidate();
}

void Canvas::render()
{
    QElapsedTimer timer;
    timer.start();
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    if (m_frame.size() != pixels)
        m_frame = QImage(pixels, QImage::Format_RGB32);
    m_frame.setDevicePixelRatio(ratio);
    m_frame.fill(m_dark ? Qt::black : Qt::white);
    if (m_geometry) {
        std::size_t vertices = 0;
        for (std::size_t i = 0; i < m_looks.size(); ++i)
            vertices += m_looks[i].visible ? m_geometry->groups[i].vertices.size() : 0;
        QPainter painter(&m_frame);
        painter.setRenderHint(QPainter::Antialiasing, vertices < kSmoothVertices);
        m_painter.paint(painter, *m_geometry, m_looks, m_view);
    }
    m_frameView = m_view;
    m_stale = false;
    m_renderMilliseconds = timer.elapsed();
}

void Canvas::paintEvent(QPaintEvent*)
{
    if (m_stale || m_frame.isNull())
        render();
    QPainter painter(this);
    if (m_frameView == m_view) {
        painter.drawImage(0, 0, m_frame);
        return;
    }
    // The picture drawn last, moved to where it belongs until there is a new one.
    painter.fillRect(rect(), m_dark ? Qt::black : Qt::white);
    const QPointF corner = m_view.toScreen(m_frameView.toDrawing({0, 0}));
    const double zoom = m_view.scale() / m_frameView.scale();
    painter.drawImage(QRectF(corner, QSizeF(m_frameView.size()) * zoom), m_frame);
}

void Canvas::resizeEvent(QResizeEvent*)
{
    if (m_view.size() == size())
        return;
    m_view.setSize(size());
    if (m_fitted)
        zoomToExtents();
    else
        invalidate();
}

void Canvas::wheelEvent(QWheelEvent* event)
{
    constexpr double kStep = 1.25;
    constexpr double kNotch = 120;
    m_view.zoomAt(event->position(), std::pow(kStep, event->angleDelta().y() / kNotch));
    viewMoved();
    event->accept();
}

void Canvas::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::MiddleButton)
        return QWidget::mousePressEvent(event);
    m_panning = true;
    m_panFrom = event->pos();
    setCursor(Qt::ClosedHandCursor);
}

void Canvas::mouseMoveEvent(QMouseEvent* event)
{
    if (m_panning) {
        m_view.pan(event->pos() - m_panFrom);
        m_panFrom = event->pos();
        viewMoved();
    }
    emit cursorMoved(m_view.toDrawing(event->localPos()));
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::MiddleButton)
        return QWidget::mouseReleaseEvent(event);
    m_panning = false;
    setCursor(Qt::CrossCursor);
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::MiddleButton)
        return QWidget::mouseDoubleClickEvent(event);
    zoomToExtents();
}
