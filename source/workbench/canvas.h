#pragma once

#include "canvasview.h"
#include "geometry.h"
#include "grouplook.h"
#include "scenepainter.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

#include <memory>

/// Shows a drawing's model space: wheel zooms at the cursor, the middle button pans, a double click
/// of it zooms to the extents.
///
/// Geometry is handed in once; layers switching on, off or changing colour only choose anew which
/// of its groups to draw and how.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(QWidget* parent = nullptr);

    /// Replaces what is shown; null shows nothing. The view stays where it is.
    void setScene(std::shared_ptr<const drawing::Geometry> geometry);
    /// Takes over the state of the layers and redraws.
    void setLayers(const std::vector<drawing::Layer>& layers);

    bool isDark() const { return m_dark; }
    void setDark(bool dark); ///< White on black or black on white.
    /// What the visible layers hold, or all of them when none is visible.
    drawing::Box extents() const;
    void zoomToExtents();
    const CanvasView& view() const { return m_view; }

    QSize sizeHint() const override { return {900, 600}; }

signals:
    void cursorMoved(const QPointF& point); ///< In drawing units.
    void backgroundChanged(bool dark);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void updateLooks();
    void invalidate();
    void viewMoved();
    void render();

    std::shared_ptr<const drawing::Geometry> m_geometry;
    std::vector<drawing::Layer> m_layers;
    std::vector<GroupLook> m_looks;
    ScenePainter m_painter;
    CanvasView m_view;
    bool m_dark = true;
    bool m_fitted = true; ///< Shows the extents and goes on doing so when resized.
    QPoint m_panFrom;
    bool m_panning = false;

    QImage m_frame; ///< What was drawn last, for `m_frameView`.
    CanvasView m_frameView;
    bool m_stale = true;
    qint64 m_renderMilliseconds = 0;
    QTimer m_settle; ///< Runs while a slow drawing moves under the hand.
};
