#pragma once

#include "geometrycurves.h"

#include <vector>

namespace drawing {

/// One family of parallel lines of a hatch pattern, in the plane of the hatch.
struct PatternLine
{
    double angle = 0; ///< In degrees.
    Vec3 base;        ///< A point of the first line.
    Vec3 offset;      ///< The offset from one line to the next.
    /// The lengths of the dashes along a line: positive ones are drawn, negative ones are gaps, 0
    /// is a dot. Empty for unbroken lines.
    std::vector<double> dashes;
};

/// The part of a pattern line that lies inside the hatch.
struct HatchSegment
{
    Vec3 from;
    Vec3 to;
};

/// Appends the pattern's lines inside the boundary, by the even-odd rule. When the pattern is too
/// fine for its area it appends nothing and returns false; the caller then draws only the boundary.
bool appendPattern(std::vector<HatchSegment>& segments, const std::vector<Path>& boundary,
    const std::vector<PatternLine>& pattern);

} // namespace drawing
