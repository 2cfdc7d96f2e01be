#pragma once

#include "scene.h"

#include <QPolygonF>

/// Finds entities by the position of their visible geometry. Everything that a block reference or a
/// dimension shows counts as that reference or dimension. Lengths are in drawing units.
class CanvasPick
{
public:
    enum class Mode { Inside, Crossing };

    /// The scene must outlive this object.
    explicit CanvasPick(const ShownScene& scene) : m_scene(scene) {}

    /// The entity with the line nearest to `at`, at most `reach` away. When there is none, the
    /// topmost entity with a fill or a text at that point; -1 when there is none either.
    int nearest(const QPointF& at, double reach) const;
    /// The entities that are completely inside the box or that cross it, depending on `mode`, in
    /// ascending order.
    std::vector<int> within(const drawing::Box& box, Mode mode) const;
    /// Those of the entities that show anything, also through viewports, in ascending order.
    std::vector<int> shown(const std::vector<int>& entities) const;
    /// The bounds of the visible geometry of the entities, which must be given in ascending order.
    /// Geometry seen through a viewport counts where the viewport shows it.
    drawing::Box bounds(const std::vector<int>& entities) const;

private:
    struct Hit;

    void addThrough(const ShownScene::Window& window, const std::vector<int>& entities,
        drawing::Box& box) const;

    const ShownScene& m_scene;
};

/// The box around a line of text, rotated like the text. Its width is an estimate.
QPolygonF textOutline(const drawing::TextRun& run);
