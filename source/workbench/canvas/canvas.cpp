#include "canvas.h"

#include "canvasfont.h"
#include "canvashighlight.h"
#include "canvaspick.h"
#include "geometry/geometrytext.h"
#include "layers/layercopies.h"
#include "scenepainters.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace {

/// This many vertices can be painted within the time of one frame.
constexpr std::size_t kCheapVertices = 20000;
/// With more vertices than this, antialiasing costs more than it is worth.
constexpr std::size_t kSmoothVertices = 400000;
/// Turns of the wheel within this time count as one change of a viewport's view.
constexpr int kSettleMilliseconds = 400;
constexpr double kReachPixels = 4; ///< The distance in pixels at which a click still hits a line.

} // namespace

Canvas::Canvas(QWidget* parent)
    : QWidget(parent),
      m_scene(std::make_shared<const ShownScene>()),
      m_painters(std::make_shared<ScenePainters>()),
      m_frame(new KeptPicture(QImage::Format_RGB32, this)),
      m_overlay(new KeptPicture(QImage::Format_ARGB32_Premultiplied, this))
{
    drawing::setCharacterWidths(canvasCharacterWidth);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::CrossCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 150);
    for (const KeptPicture* picture : {m_frame, m_overlay})
        connect(picture, &KeptPicture::painted, this, [this] { update(); });
    m_settle.setSingleShot(true);
    m_settle.setInterval(kSettleMilliseconds);
    connect(&m_settle, &QTimer::timeout, this, &Canvas::settleViewport);
    updateLooks();
}

Canvas::~Canvas() = default;

void Canvas::setLayers(const std::vector<drawing::Layer>& layers)
{
    drawing::followLayers(m_layers, layers);
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
    setScene(m_scene->scene());
}

void Canvas::setScene(Scene scene)
{
    scene.sheet = m_sheet;
    m_scene = std::make_shared<const ShownScene>(
        std::move(scene), LookSource{m_layers, m_linetypes.get(), m_dark});
    showScene();
    setSelection(m_selection);
}

void Canvas::showScene()
{
    constexpr double kMillimetresPerInch = 25.4;
    const bool isSmooth = m_scene->vertexCount() < kSmoothVertices;
    const double lineweightScale = m_showsLineweights ? logicalDpiY() / kMillimetresPerInch : 0;
    m_frame->setContent(
        [scene = m_scene, painters = m_painters, isSmooth, lineweightScale](QPainter& painter,
            const CanvasView& view, const QRect& area, const std::atomic<bool>& isDropped) {
            painter.setRenderHint(QPainter::Antialiasing, isSmooth);
            const ScenePainters::Loan scenePainter = painters->take();
            scenePainter->setLineweightScale(lineweightScale);
            scenePainter->paint(painter, *scene, view, area, isDropped);
        },
        background(), m_scene->vertexCount() <= kCheapVertices);
    update();
}

void Canvas::setSelection(std::vector<int> entities)
{
    if (!entities.empty())
        entities = CanvasPick(*m_scene).shown(entities);
    const bool isSame = entities == m_selection;
    m_selection = std::move(entities);
    paintSelection();
    update();
    if (!isSame)
        emit selectionChanged(static_cast<int>(m_selection.size()));
}

void Canvas::paintSelection()
{
    const auto marks = std::make_shared<CanvasHighlight>(m_scene, m_selection);
    m_overlay->setContent(
        [marks](QPainter& painter, const CanvasView& view, const QRect& area,
            const std::atomic<bool>& isDropped) { marks->paint(painter, view, area, isDropped); },
        Qt::transparent, marks->isCheap());
}

drawing::Box Canvas::extents() const
{
    return m_scene->extents();
}

void Canvas::zoomToExtents()
{
    m_view.setSize(size());
    m_view.fit(extents());
    m_fitted = true;
    update();
}

void Canvas::zoomToSelection()
{
    constexpr double kRoom = 0.7;
    if (m_selection.empty())
        return;
    m_view.fit(CanvasPick(*m_scene).bounds(m_selection));
    m_view.zoomAt(QRectF(rect()).center(), kRoom);
    viewMoved();
}

void Canvas::viewMoved()
{
    m_fitted = false;
    update();
}

bool Canvas::isPainted() const
{
    return m_frame->isOf(m_view) && (m_selection.empty() || m_overlay->isOf(m_view));
}

void Canvas::paintEvent(QPaintEvent*)
{
    m_frame->provide(m_view, devicePixelRatioF());
    QPainter painter(this);
    if (!m_frame->isOf(m_view))
        painter.fillRect(rect(), background());
    m_frame->draw(painter, m_view);
    if (!m_selection.empty()) {
        m_overlay->provide(m_view, devicePixelRatioF());
        m_overlay->draw(painter, m_view);
    }
    drawCurrentViewport(painter);
    if (m_windowing)
        drawWindow(painter);
}

void Canvas::drawCurrentViewport(QPainter& painter) const
{
    constexpr int kOutside = 2;
    constexpr int kInside = 4;
    if (!m_sheet)
        return;
    for (const drawing::SheetViewport& viewport : m_sheet->viewports) {
        if (!viewport.isCurrent)
            continue;
        painter.setPen(QPen(QColor(0x2ea043), m_isInViewport ? kInside : kOutside));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(outlineOf(viewport, PlaneMap(m_view)));
    }
}

/// The topmost viewport at this pixel; -1 when there is none.
int Canvas::viewportAt(const QPoint& pixel) const
{
    int found = -1;
    for (const ShownScene::Window& window : m_scene->windows()) {
        const QPolygonF outline = outlineOf(window.viewport, PlaneMap(m_view));
        if (outline.containsPoint(pixel, Qt::OddEvenFill))
            found = window.viewport.entity;
    }
    return found;
}

Canvas::Workplace Canvas::workplace() const
{
    const PlaneMap map(m_view);
    for (const ShownScene::Window& window : m_scene->windows()) {
        if (m_isInViewport && window.viewport.isCurrent)
            return {*window.scene, map.through(window.viewport), &window.viewport};
    }
    return {*m_scene, map};
}

/// False where there is none to be moved.
bool Canvas::moveInViewport(const std::function<void(drawing::SheetViewport&)>& move)
{
    const drawing::SheetViewport* const viewport = workplace().viewport;
    if (!viewport || viewport->isLocked)
        return false;
    drawing::SheetViewport moved = *viewport;
    move(moved);
    m_scene = std::make_shared<const ShownScene>(m_scene->with(moved));
    showScene();
    paintSelection();
    m_viewportMoved = true;
    m_settle.start();
    return true;
}

void Canvas::settleViewport()
{
    m_settle.stop();
    if (!std::exchange(m_viewportMoved, false))
        return;
    if (const drawing::SheetViewport* viewport = workplace().viewport)
        emit viewportMoved(drawing::SheetViewport(*viewport));
}

void Canvas::leaveViewport()
{
    settleViewport();
    if (!std::exchange(m_isInViewport, false))
        return;
    update();
    emit viewportLeft();
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
    const Workplace place = workplace();
    const CanvasPick pick(place.scene);
    QRectF window = QRectF(from, to).normalized();
    if (place.viewport) {
        const QPolygonF outline = outlineOf(*place.viewport, PlaneMap(m_view));
        window &= outline.boundingRect();
        if (m_windowing ? window.isEmpty() : !outline.containsPoint(to, Qt::OddEvenFill))
            return {};
    }
    if (!m_windowing) {
        const int entity = pick.nearest(place.map.toPlane(to), kReachPixels / place.map.scale());
        return entity < 0 ? std::vector<int>() : std::vector<int>{entity};
    }
    return pick.within(place.map.boxAround(window),
        to.x() < from.x() ? CanvasPick::Mode::Crossing : CanvasPick::Mode::Inside);
}

void Canvas::pick(const QPoint& from, const QPoint& to, bool adds)
{
    std::vector<int> found = picked(from, to);
    if (!adds) {
        setSelection(std::move(found));
        return;
    }
    std::vector<int> all;
    // Clicking an entity again removes it from the selection.
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
}

void Canvas::wheelEvent(QWheelEvent* event)
{
    constexpr double kStep = 1.25;
    constexpr double kNotch = 120;
    const double factor = std::pow(kStep, event->angleDelta().y() / kNotch);
    const QPointF at = m_view.toDrawing(event->position());
    event->accept();
    if (moveInViewport([&](drawing::SheetViewport& viewport) { viewport.zoomAt(at, factor); }))
        return;
    m_view.zoomAt(event->position(), factor);
    viewMoved();
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
        pan(event->pos() - m_panFrom);
        m_panFrom = event->pos();
    }
    if (m_pressed) {
        m_windowTo = event->pos();
        m_windowing = m_windowing || (m_windowTo - m_windowFrom).manhattanLength() >=
                                         QApplication::startDragDistance();
        update();
    }
    emit cursorMoved(workplace().map.toPlane(event->localPos()));
}

void Canvas::pan(const QPoint& pixels)
{
    const QPointF way = QPointF(pixels.x(), -pixels.y()) / m_view.scale();
    if (moveInViewport([&](drawing::SheetViewport& viewport) { viewport.pan(way); }))
        return;
    m_view.pan(pixels);
    viewMoved();
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
    settleViewport();
    setCursor(m_picking ? Qt::PointingHandCursor : Qt::CrossCursor);
}

void Canvas::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (m_picking && isEnter)
        return endPick(true);
    // While a window is being drawn, Esc only cancels the window.
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
    if (event->button() == Qt::MiddleButton)
        return zoomToExtents();
    if (event->button() != Qt::LeftButton || !m_sheet || m_picking)
        return QWidget::mouseDoubleClickEvent(event);
    const int viewport = viewportAt(event->pos());
    if (viewport < 0)
        return leaveViewport();
    settleViewport();
    m_isInViewport = true;
    update();
    emit viewportEntered(viewport);
}
