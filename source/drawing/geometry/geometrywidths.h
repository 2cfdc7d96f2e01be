#pragma once

#include "geometrycurves.h"

#include <optional>

namespace drawing {

/// What a polyline's vertices draw in its plane: lines of one width, or surfaces where it tapers.
struct PolylinePicture
{
    Path lines;
    std::vector<Path> surfaces; ///< Closed outlines, a segment each.
    double width = 0;           ///< Of the lines.
    bool patternRestarts = false;
};

/// `isContinuous`: the linetype runs on through the vertices.
PolylinePicture pictureOf(
    const std::vector<BulgeVertex>& vertices, bool isClosed, bool isContinuous);

} // namespace drawing
