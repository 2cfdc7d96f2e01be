#pragma once

#include "geometrycurves.h"

#include <vector>

namespace drawing {

/// One family of parallel lines of a hatch pattern, in the hatch's plane.
struct PatternLine
{
    double angle = 0; ///< Degrees.
    Vec3 base;        ///< A point of the first line.
    Vec3 offset;      ///< From a line to the next.
    /// Lengths along a line in turn: positive drawn, negative left out, 0 a dot; empty = unbroken.
    std::vector<double> dashes;
};

/// A segment of a pattern line inside the hatch.
struct HatchSegment
{
    Vec3 from;
    Vec3 to;
};

/// The pattern's lines inside the boundary, by the even-odd rule. Adds nothing and returns false
/// when the pattern is too fine for its area: then only the boundary is worth drawing.
bool appendPattern(std::vector<HatchSegment>& segments, const std::vector<Path>& boundary,
    const std::vector<PatternLine>& pattern);

} // namespace drawing
