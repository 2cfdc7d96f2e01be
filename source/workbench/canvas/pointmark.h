#pragma once

#include "geometry/pictureswitches.h"

#include <QPainterPath>

/// The picture that represents points of a drawing.
struct PointMark
{
    /// `scale` is in pixels per drawing unit, `height` is the height of the view in pixels.
    PointMark(const drawing::PictureSwitches& switches, double scale, double height);

    bool isDot = true;
    QPainterPath path; ///< Around (0, 0), in pixels; empty when nothing is drawn.
    double reach = 0;  ///< The largest distance from the point, in pixels.
};
