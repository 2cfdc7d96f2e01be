#pragma once

#include "geometrymath.h"

#include <vector>

namespace drawing {

using Path = std::vector<Vec3>;

/// A vertex of a polyline and the bulge of the segment that starts there: the tangent of a quarter
/// of the arc's angle, positive counterclockwise, 0 for a straight segment.
struct BulgeVertex
{
    Vec3 point;
    double bulge = 0;
    double startWidth = 0; ///< The segment's width at this vertex.
    double endWidth = 0;   ///< The segment's width at the next vertex.
};

/// A spline as files store it. Weights may be missing. The fit points are used when the rest is
/// unusable.
struct Spline
{
    int degree = 3;
    bool closed = false;
    std::vector<double> knots;
    std::vector<double> weights;
    Path controls;
    Path fitPoints;
};

/// Appends the points of an elliptical arc, both ends included. It begins at parameter `start` and
/// extends by `sweep`, both in radians. `major` and `minor` are the half axes; perpendicular axes
/// of equal length make a circle.
void appendEllipse(Path& path, const Vec3& center, const Vec3& major, const Vec3& minor,
    double start, double sweep);
/// Appends the points of a circular arc in the xy plane, both ends included.
void appendArc(Path& path, const Vec3& center, double radius, double start, double sweep);
/// Appends a polyline with its bulges. A closed one ends at its first vertex.
void appendBulges(Path& path, const std::vector<BulgeVertex>& vertices, bool closed);
/// Appends one segment of a polyline, both ends included.
void appendSegment(Path& path, const BulgeVertex& from, const Vec3& to);
void appendSpline(Path& path, const Spline& spline);
/// The angle in radians from `start` forward to `end`: more than 0 and at most a full turn.
double forwardSweep(double start, double end);

} // namespace drawing
