#pragma once

#include "canvashighlight.h"
#include "canvasview.h"
#include "keptpicture.h"
#include "planemap.h"
#include "scene.h"

#include <QTimer>
#include <QWidget>

class ScenePainters;

/// Shows a space of a drawing. The wheel zooms at the cursor, the middle button pans, and its
/// double click zooms to the extents. The left button selects: a click selects the entity at the
/// cursor, a window drawn to the right selects what lies inside it, and one drawn to the left also
/// what crosses it. Ctrl adds to the selection, or removes what is clicked again; Esc clears the
/// selection. Entities on hidden layers cannot be selected, those on locked layers can. A double
/// click on a sheet enters the viewport there, or leaves it. Inside a viewport, zooming, panning
/// and selecting apply to what it shows, unless its view is locked.
///
/// The geometry is passed in once. When layers are switched or change their colour, the canvas only
/// decides anew which groups of the geometry to draw and how. Large drawings are painted on other
/// threads; until they are done, the last picture is shown at its place in the view.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(QWidget* parent = nullptr);

    ~Canvas() override;

    /// Replaces the contents. The view stays the same, and so does the selection as far as it is
    /// still shown. For another drawing the caller must clear the selection.
    void setScene(Scene scene);
    /// Takes over the state of the layers and redraws.
    void setLayers(const std::vector<drawing::Layer>& layers);

    /// Sets where the layers' linetypes are looked up, beginning with the next `setLayers`; null
    /// means in the scene.
    void setLinetypes(std::shared_ptr<const drawing::LinetypePatterns> linetypes);
    /// Sets the sheet to show, beginning with the next `setLayers`; null for model space.
    void setSheet(std::shared_ptr<const drawing::Sheet> sheet) { m_sheet = std::move(sheet); }
    /// Whether the user works inside the current viewport of the sheet.
    bool isInViewport() const { return m_isInViewport; }
    void leaveViewport();
    /// Says at once where the viewport looks now, if somebody zoomed or panned in it.
    void settleViewport();
    bool showsLineweights() const { return m_showsLineweights; }
    void setShowsLineweights(bool shows);

    bool isDark() const { return m_dark; }
    void setDark(bool dark); ///< White on black, or black on white.
    /// The extents of the visible layers, or of all layers when none is visible.
    drawing::Box extents() const;
    void zoomToExtents();
    /// Whether the view shows the extents and the user has not zoomed or panned since.
    bool isFitted() const { return m_fitted; }
    /// Whether the picture is up to date and nothing is being painted.
    bool isPainted() const;
    const CanvasView& view() const { return m_view; }

    /// The indices of the selected entities in ascending order.
    const std::vector<int>& selection() const { return m_selection; }
    /// Selects these entities, given in any order, as far as they are shown.
    void setSelection(std::vector<int> entities);
    void clearSelection() { setSelection({}); }
    /// Shows the selection with a margin around it. Does nothing without a selection.
    void zoomToSelection();

    /// Starts a pick. It begins without a selection; clicks and windows add entities, and clicking
    /// one again removes it. ENTER or the right button accepts the pick, Esc cancels it.
    void beginPick();

    QSize sizeHint() const override { return {900, 600}; }

signals:
    void cursorMoved(const QPointF& point); ///< In drawing units.
    void backgroundChanged(bool dark);
    void selectionChanged(int count);
    void pickEnded(bool accepted);    ///< The picked entities are selected.
    void viewportEntered(int entity); ///< The user double-clicked inside it.
    void viewportLeft();
    /// Somebody zoomed or panned in a viewport, and has not gone on for a moment.
    void viewportMoved(const drawing::SheetViewport& viewport);

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
    void pan(const QPoint& pixels);
    void paintSelection();
    QColor background() const { return m_dark ? Qt::black : Qt::white; }
    void drawWindow(QPainter& painter) const;
    void drawCurrentViewport(QPainter& painter) const;
    int viewportAt(const QPoint& pixel) const;
    /// Where somebody is at work: the plane of the scene, or model space through a viewport.
    struct Workplace
    {
        const ShownScene& scene;
        PlaneMap map;
        const drawing::SheetViewport* viewport = nullptr;
    };
    Workplace workplace() const;
    bool moveInViewport(const std::function<void(drawing::SheetViewport&)>& move);
    void showScene();
    void pick(const QPoint& from, const QPoint& to, bool adds);
    std::vector<int> picked(const QPoint& from, const QPoint& to) const;
    void endWindow();
    void endPick(bool accepted);

    ScenePointer m_scene;
    std::vector<drawing::Layer> m_layers;
    std::shared_ptr<const drawing::LinetypePatterns> m_linetypes;
    std::shared_ptr<const drawing::Sheet> m_sheet;
    bool m_isInViewport = false;
    bool m_viewportMoved = false; ///< And nobody was told.
    QTimer m_settle;              ///< Until somebody is.
    bool m_showsLineweights = false;
    std::shared_ptr<ScenePainters> m_painters;
    CanvasView m_view;
    bool m_dark = true;
    bool m_fitted = true; ///< Shows the extents, and keeps showing them when resized.
    QPoint m_panFrom;
    bool m_panning = false;

    std::vector<int> m_selection;
    QPoint m_windowFrom;
    QPoint m_windowTo;
    bool m_pressed = false; ///< The left button is pressed in order to select.
    bool m_windowing = false;
    bool m_picking = false; ///< A pick was begun and has not ended.

    KeptPicture* m_frame = nullptr;
    KeptPicture* m_overlay = nullptr; ///< The marks of the selected entities.
};
