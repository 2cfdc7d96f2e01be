#pragma once

#include "geometrymath.h"

#include <vector>

namespace drawing {

using Path = std::vector<Vec3>;

/// A vertex of a polyline with the bulge of the segment that starts at it: the tangent of a quarter
/// of the arc's angle, positive counterclockwise, 0 for a straight segment.
struct BulgeVertex
{
    Vec3 point;
    double bulge = 0;
    double startWidth = 0; ///< Of the segment, where it starts at this vertex.
    double endWidth = 0;   ///< Where it ends at the next.
};

/// A spline as files hold it. Weights may be missing; fit points serve when the rest is unusable.
struct Spline
{
    int degree = 3;
    bool closed = false;
    std::vector<double> knots;
    std::vector<double> weights;
    Path controls;
    Path fitPoints;
};

/// Adds the points of an ellipse's arc from `start` by `sweep` (radians of the parameter), both
/// ends included. `major` and `minor` are the half axes; equal ones at a right angle make a circle.
void appendEllipse(Path& path, const Vec3& center, const Vec3& major, const Vec3& minor,
    double start, double sweep);
/// The same for a circle in the xy plane.
void appendArc(Path& path, const Vec3& center, double radius, double start, double sweep);
/// Adds a polyline with its bulges; a closed one ends where it began.
void appendBulges(Path& path, const std::vector<BulgeVertex>& vertices, bool closed);
/// Adds a segment of a polyline, both ends included.
void appendSegment(Path& path, const BulgeVertex& from, const Vec3& to);
void appendSpline(Path& path, const Spline& spline);
/// The way from `start` to `end` in radians, always forward: more than 0, at most a full turn.
double forwardSweep(double start, double end);

} // namespace drawing
