#include "canvas.h"

#include "canvaspick.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// Drawings that take longer are shown as a moved picture while zooming and panning goes on.
constexpr qint64 kFluentMilliseconds = 60;
constexpr int kSettleMilliseconds = 120;
/// Beyond this many vertices smooth lines cost more than they show.
constexpr std::size_t kSmoothVertices = 400'000;
constexpr double kReachPixels = 4; ///< How far from a line a click still hits it.

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

void Canvas::setLinetypes(std::shared_ptr<const drawing::LinetypePatterns> linetypes)
{
    m_linetypes = std::move(linetypes);
}

void Canvas::setShowsLineweights(bool shows)
{
    if (m_showsLineweights == shows)
        return;
    m_showsLineweights = shows;
    invalidate();
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
    m_looks = m_geometry ? looksOf(*m_geometry, {m_layers, m_linetypes.get(), m_dark})
                         : std::vector<GroupLook>();
    setSelection(m_selection);
    invalidate();
}

void Canvas::setSelection(std::vector<int> entities)
{
    std::sort(entities.begin(), entities.end());
    entities.erase(std::unique(entities.begin(), entities.end()), entities.end());
    if (m_geometry && !entities.empty())
        entities = CanvasPick(*m_geometry, m_looks).shown(entities);
    else
        entities.clear();
    if (m_geometry)
        m_highlight.collect(*m_geometry, m_looks, entities);
    const bool isSame = entities == m_selection;
    m_selection = std::move(entities);
    m_overlay.stale = true;
    update();
    if (!isSame)
        emit selectionChanged(static_cast<int>(m_selection.size()));
}

void Canvas::invalidate()
{
    m_frame.stale = true;
    m_overlay.stale = true;
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

void Canvas::zoomToSelection()
{
    constexpr double kRoom = 0.7;
    if (m_selection.empty())
        return;
    m_view.fit(CanvasPick(*m_geometry, m_looks).bounds(m_selection));
    m_view.zoomAt(QRectF(rect()).center(), kRoom);
    m_fitted = false;
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

/// Makes room for a picture of the present view.
void Canvas::prepare(Picture& picture, QImage::Format format, const QColor& ground)
{
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    if (picture.image.size() != pixels)
        picture.image = QImage(pixels, format);
    picture.image.setDevicePixelRatio(ratio);
    picture.image.fill(ground);
    picture.view = m_view;
    picture.stale = false;
}

void Canvas::renderHighlight()
{
    prepare(m_overlay, QImage::Format_ARGB32_Premultiplied, Qt::transparent);
    QPainter painter(&m_overlay.image);
    m_highlight.paint(painter, *m_geometry, m_view);
}

void Canvas::render()
{
    QElapsedTimer timer;
    timer.start();
    prepare(m_frame, QImage::Format_RGB32, m_dark ? Qt::black : Qt::white);
    if (m_geometry) {
        std::size_t vertices = 0;
        for (std::size_t i = 0; i < m_looks.size(); ++i)
            vertices += m_looks[i].visible ? m_geometry->groups[i].vertices.size() : 0;
        QPainter painter(&m_frame.image);
        // Only with a rectangular clip are thin lines written pixel by pixel instead of by spans,
        // which takes a third of the time and paints the same.
        painter.setClipRect(rect());
        painter.setRenderHint(QPainter::Antialiasing, vertices < kSmoothVertices);
        constexpr double kMillimetresPerInch = 25.4;
        m_painter.setLineweightScale(m_showsLineweights ? logicalDpiY() / kMillimetresPerInch : 0);
        m_painter.paint(painter, *m_geometry, m_looks, m_view);
    }
    m_renderMilliseconds = timer.elapsed();
}

void Canvas::paintEvent(QPaintEvent*)
{
    if (m_frame.stale || m_frame.image.isNull())
        render();
    QPainter painter(this);
    if (!(m_frame.view == m_view))
        painter.fillRect(rect(), m_dark ? Qt::black : Qt::white);
    drawPicture(painter, m_frame);
    if (!m_selection.empty()) {
        if (m_overlay.stale || m_overlay.image.isNull())
            renderHighlight();
        drawPicture(painter, m_overlay);
    }
    if (m_windowing)
        drawWindow(painter);
}

/// A picture of another view is moved to where it belongs until there is a new one.
void Canvas::drawPicture(QPainter& painter, const Picture& picture) const
{
    if (picture.view == m_view) {
        painter.drawImage(0, 0, picture.image);
        return;
    }
    const QPointF corner = m_view.toScreen(picture.view.toDrawing({0, 0}));
    const double zoom = m_view.scale() / picture.view.scale();
    painter.drawImage(QRectF(corner, QSizeF(picture.view.size()) * zoom), picture.image);
}

void Canvas::drawWindow(QPainter& painter) const
{
    const bool isCrossing = m_windowTo.x() < m_windowFrom.x();
    QColor color(isCrossing ? 0x2ea043 : 0x3d9bff);
    painter.setPen(QPen(color, 1, isCrossing ? Qt::DashLine : Qt::SolidLine));
    color.setAlpha(40);
    painter.setBrush(color);
    painter.drawRect(QRect(m_windowFrom, m_windowTo).normalized());
}

std::vector<int> Canvas::picked(const QPoint& from, const QPoint& to) const
{
    const CanvasPick pick(*m_geometry, m_looks);
    if (!m_windowing) {
        const int entity = pick.nearest(m_view.toDrawing(to), kReachPixels / m_view.scale());
        return entity < 0 ? std::vector<int>() : std::vector<int>{entity};
    }
    drawing::Box box;
    box.add(m_view.toDrawing(from));
    box.add(m_view.toDrawing(to));
    return pick.within(
        box, to.x() < from.x() ? CanvasPick::Mode::Crossing : CanvasPick::Mode::Inside);
}

void Canvas::pick(const QPoint& from, const QPoint& to, bool adds)
{
    if (!m_geometry)
        return;
    std::vector<int> found = picked(from, to);
    if (!adds) {
        setSelection(std::move(found));
        return;
    }
    std::vector<int> all;
    // What is clicked a second time goes.
    if (m_windowing)
        std::set_union(m_selection.begin(), m_selection.end(), found.begin(), found.end(),
            std::back_inserter(all));
    else
        std::set_symmetric_difference(m_selection.begin(), m_selection.end(), found.begin(),
            found.end(), std::back_inserter(all));
    setSelection(std::move(all));
}

void Canvas::endWindow()
{
    m_pressed = false;
    m_windowing = false;
    update();
}

void Canvas::beginPick()
{
    clearSelection();
    m_picking = true;
    setCursor(Qt::PointingHandCursor);
}

void Canvas::endPick(bool accepted)
{
    m_picking = false;
    setCursor(Qt::CrossCursor);
    emit pickEnded(accepted);
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
    if (event->button() == Qt::LeftButton) {
        m_pressed = true;
        m_windowFrom = event->pos();
        return;
    }
    if (event->button() == Qt::RightButton && m_picking)
        return endPick(true);
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
    if (m_pressed) {
        m_windowTo = event->pos();
        m_windowing = m_windowing || (m_windowTo - m_windowFrom).manhattanLength() >=
                                         QApplication::startDragDistance();
        update();
    }
    emit cursorMoved(m_view.toDrawing(event->localPos()));
}

void Canvas::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_pressed) {
        pick(m_windowFrom, event->pos(), m_picking || event->modifiers() & Qt::ControlModifier);
        endWindow();
        return;
    }
    if (event->button() != Qt::MiddleButton)
        return QWidget::mouseReleaseEvent(event);
    m_panning = false;
    setCursor(m_picking ? Qt::PointingHandCursor : Qt::CrossCursor);
}

void Canvas::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (m_picking && isEnter)
        return endPick(true);
    // While a window is drawn Esc only drops the window.
    if (m_picking && event->key() == Qt::Key_Escape && !m_pressed)
        return endPick(false);
    if (event->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(event);
    if (!m_pressed)
        clearSelection();
    endWindow();
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::MiddleButton)
        return QWidget::mouseDoubleClickEvent(event);
    zoomToExtents();
}
