#pragma once

#include "geometry/geometry.h"
#include "grouplook.h"

#include <QPolygonF>

/// Finds entities by where their visible geometry lies. Whatever a block reference or a dimension
/// shows counts as the reference or the dimension itself. Lengths are drawing units.
class CanvasPick
{
public:
    enum class Mode { Inside, Crossing };

    /// Both must outlive this; there is one look per group.
    CanvasPick(const drawing::Geometry& geometry, const std::vector<GroupLook>& looks)
        : m_geometry(geometry),
          m_looks(looks)
    {
    }

    /// The entity whose lines pass nearest to `at`, within `reach`; where none do, the one drawn
    /// last that has a fill or a text there. -1 when there is none.
    int nearest(const QPointF& at, double reach) const;
    /// The entities that lie in the box with all they show, or that reach into it; ascending.
    std::vector<int> within(const drawing::Box& box, Mode mode) const;
    /// Of these, given in ascending order, those that show anything.
    std::vector<int> shown(const std::vector<int>& entities) const;
    /// What these, given in ascending order, take up as far as they show.
    drawing::Box bounds(const std::vector<int>& entities) const;

private:
    struct Hit;

    const drawing::Geometry& m_geometry;
    const std::vector<GroupLook>& m_looks;
};

/// The box around a line of text, slanted as the text is. Its width is an estimate.
QPolygonF textOutline(const drawing::TextRun& run);
