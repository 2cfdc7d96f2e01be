#pragma once

#include "canvashighlight.h"
#include "canvasview.h"
#include "keptpicture.h"
#include "scene.h"

#include <QWidget>

class ScenePainters;

/// Shows a space of a drawing: wheel zooms at the cursor, the middle button pans, a double click
/// of it zooms to the extents. The left button selects: a click what is there, a window drawn to
/// the right what lies in it, to the left what reaches into it; Ctrl adds, and takes out what is
/// clicked again; Esc clears. What is on layers not shown cannot be selected, what is on locked
/// layers can. Double clicks on a sheet enter the viewport there, or leave it.
///
/// Geometry is handed in once; layers switching on, off or changing colour only choose anew which
/// of its groups to draw and how. Large drawings are painted on other threads; meanwhile the last
/// picture is shown, moved to where it belongs.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(QWidget* parent = nullptr);

    ~Canvas() override;

    /// Replaces what is shown. The view stays where it is, and the selection as far as it is shown:
    /// for another drawing it must be cleared.
    void setScene(Scene scene);
    /// Takes over the state of the layers and redraws.
    void setLayers(const std::vector<drawing::Layer>& layers);

    /// Where the layers' linetypes are looked up from the next `setLayers` on; null: where those of
    /// the scene are.
    void setLinetypes(std::shared_ptr<const drawing::LinetypePatterns> linetypes);
    /// The sheet that is shown from the next `setLayers` on; null in model space.
    void setSheet(std::shared_ptr<const drawing::Sheet> sheet) { m_sheet = std::move(sheet); }
    /// Whether the user is at work in the current viewport of the sheet.
    bool isInViewport() const { return m_isInViewport; }
    void leaveViewport();
    bool showsLineweights() const { return m_showsLineweights; }
    void setShowsLineweights(bool shows);

    bool isDark() const { return m_dark; }
    void setDark(bool dark); ///< White on black or black on white.
    /// What the visible layers hold, or all of them when none is visible.
    drawing::Box extents() const;
    void zoomToExtents();
    /// Whether all is shown and nobody zoomed or panned since.
    bool isFitted() const { return m_fitted; }
    /// Whether what is seen is all there is to be seen, and nothing is being painted.
    bool isPainted() const;
    const CanvasView& view() const { return m_view; }

    /// Indices of entities of the drawing, ascending.
    const std::vector<int>& selection() const { return m_selection; }
    /// Selects these, in any order, as far as they are shown.
    void setSelection(std::vector<int> entities);
    void clearSelection() { setSelection({}); }
    /// Shows what is selected, with room around it; nothing moves without a selection.
    void zoomToSelection();

    /// Starts a pick: from nothing selected, clicks and windows add what they hit, or take out what
    /// is clicked again, until ENTER or the right button ends it, or Esc gives up.
    void beginPick();

    QSize sizeHint() const override { return {900, 600}; }

signals:
    void cursorMoved(const QPointF& point); ///< In drawing units.
    void backgroundChanged(bool dark);
    void selectionChanged(int count);
    void pickEnded(bool accepted);    ///< The pick is what is selected.
    void viewportEntered(int entity); ///< By a double click in it.
    void viewportLeft();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void updateLooks();
    void viewMoved();
    void paintSelection();
    QColor background() const { return m_dark ? Qt::black : Qt::white; }
    void drawWindow(QPainter& painter) const;
    void drawCurrentViewport(QPainter& painter) const;
    int viewportAt(const QPoint& pixel) const;
    void pick(const QPoint& from, const QPoint& to, bool adds);
    std::vector<int> picked(const QPoint& from, const QPoint& to) const;
    void endWindow();
    void endPick(bool accepted);

    ScenePointer m_scene;
    std::vector<drawing::Layer> m_layers;
    std::shared_ptr<const drawing::LinetypePatterns> m_linetypes;
    std::shared_ptr<const drawing::Sheet> m_sheet;
    bool m_isInViewport = false;
    bool m_showsLineweights = false;
    std::shared_ptr<ScenePainters> m_painters;
    CanvasView m_view;
    bool m_dark = true;
    bool m_fitted = true; ///< Shows the extents and goes on doing so when resized.
    QPoint m_panFrom;
    bool m_panning = false;

    std::vector<int> m_selection;
    QPoint m_windowFrom;
    QPoint m_windowTo;
    bool m_pressed = false; ///< The left button, to select.
    bool m_windowing = false;
    bool m_picking = false; ///< Between `beginPick` and its end.

    KeptPicture* m_frame = nullptr;
    KeptPicture* m_overlay = nullptr; ///< The marks of what is selected.
};
