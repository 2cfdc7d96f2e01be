#pragma once

#include "geometrycurves.h"

#include <optional>

namespace drawing {

/// The picture of a polyline in its plane: lines of one width, or surfaces where the width changes.
struct PolylinePicture
{
    Path lines;
    std::vector<Path> surfaces; ///< One closed outline per segment.
    double width = 0;           ///< The width of the lines.
    bool patternRestarts = false;
};

/// `isContinuous` tells whether the linetype pattern continues through the vertices.
PolylinePicture pictureOf(
    const std::vector<BulgeVertex>& vertices, bool isClosed, bool isContinuous);

} // namespace drawing
