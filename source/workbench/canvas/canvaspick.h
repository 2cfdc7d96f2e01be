#pragma once

#include "scene.h"

#include <QPolygonF>

/// Finds entities by where their visible geometry lies. Whatever a block reference or a dimension
/// shows counts as the reference or the dimension itself. Lengths are drawing units.
class CanvasPick
{
public:
    enum class Mode { Inside, Crossing };

    /// The scene must outlive this.
    explicit CanvasPick(const ShownScene& scene) : m_scene(scene) {}

    /// The entity whose lines pass nearest to `at`, within `reach`; where none do, the one drawn
    /// last that has a fill or a text there. -1 when there is none.
    int nearest(const QPointF& at, double reach) const;
    /// The entities that lie in the box with all they show, or that reach into it; ascending.
    std::vector<int> within(const drawing::Box& box, Mode mode) const;
    /// Of these those that show anything; ascending.
    std::vector<int> shown(const std::vector<int>& entities) const;
    /// What these, given in ascending order, take up as far as they show.
    drawing::Box bounds(const std::vector<int>& entities) const;

private:
    struct Hit;

    const ShownScene& m_scene;
};

/// The box around a line of text, slanted as the text is. Its width is an estimate.
QPolygonF textOutline(const drawing::TextRun& run);
