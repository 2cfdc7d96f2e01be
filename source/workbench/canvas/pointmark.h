#pragma once

#include "geometry/pictureswitches.h"

#include <QPainterPath>

/// What points of a drawing are drawn as.
struct PointMark
{
    /// `scale` is pixels a drawing unit, `height` the view's in pixels.
    PointMark(const drawing::PictureSwitches& switches, double scale, double height);

    bool isDot = true;
    QPainterPath path; ///< Around 0,0, in pixels; empty where nothing is drawn.
    double reach = 0;  ///< Pixels from the point at most.
};
