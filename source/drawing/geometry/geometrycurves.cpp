#include "geometrycurves.h"

#include <algorithm>
#include <cmath>

namespace drawing {

namespace {

constexpr int kTurnSteps = 96;        ///< The segments of a full circle.
constexpr int kSpanSteps = 12;        ///< The segments between two knots of a spline.
constexpr int kMaxSplineSteps = 6000; ///< Splines with more spans get fewer segments each.
constexpr int kMaxDegree = 25;

/// Appends the points of the arc after `from`, including `to`.
void appendBulge(Path& path, const Vec3& from, const Vec3& to, double bulge)
{
    const double chord = std::hypot(to.x - from.x, to.y - from.y);
    if (!std::isfinite(bulge) || std::abs(bulge) < 1e-9 || chord == 0 || !std::isfinite(chord)) {
        path.push_back(to);
        return;
    }
    // The centre is on the perpendicular bisector of the chord; the offset is relative to the
    // chord's length.
    const double offset = (1 - bulge * bulge) / (4 * bulge);
    const Vec3 center{(from.x + to.x) / 2 - (to.y - from.y) * offset,
        (from.y + to.y) / 2 + (to.x - from.x) * offset, from.z};
    const double radius = chord * (1 + bulge * bulge) / (4 * std::abs(bulge));
    const double start = std::atan2(from.y - center.y, from.x - center.x);
    Path arc;
    appendArc(arc, center, radius, start, 4 * std::atan(bulge));
    // An arc that is too large to have a finite centre is reduced to its ends.
    if (!arc.empty())
        path.insert(path.end(), arc.begin() + 1, arc.end() - 1);
    path.push_back(to);
}

/// Whether the knots are finite, do not decrease, and match the degree and the control points.
bool knotsFit(const Spline& spline)
{
    const std::size_t wanted = spline.controls.size() + static_cast<std::size_t>(spline.degree) + 1;
    return spline.knots.size() == wanted &&
           std::all_of(spline.knots.begin(), spline.knots.end(),
               [](double knot) { return std::isfinite(knot); }) &&
           std::is_sorted(spline.knots.begin(), spline.knots.end());
}

bool evaluable(const Spline& spline)
{
    return spline.degree >= 1 && spline.degree <= kMaxDegree &&
           spline.controls.size() > static_cast<std::size_t>(spline.degree) && knotsFit(spline);
}

/// Evaluates the spline with De Boor's algorithm in homogeneous coordinates. `span` is the index of
/// the last knot that is not after `t`.
Vec3 splinePoint(const Spline& spline, std::size_t span, double t)
{
    const std::size_t degree = static_cast<std::size_t>(spline.degree);
    const bool rational = spline.weights.size() == spline.controls.size();
    Vec3 points[kMaxDegree + 1];
    double weights[kMaxDegree + 1];
    for (std::size_t i = 0; i <= degree; ++i) {
        const std::size_t source = span - degree + i;
        weights[i] = rational ? spline.weights[source] : 1;
        points[i] = spline.controls[source] * weights[i];
    }
    for (std::size_t level = 1; level <= degree; ++level) {
        for (std::size_t i = degree; i >= level; --i) {
            const double low = spline.knots[span - degree + i];
            const double high = spline.knots[span + 1 + i - level];
            const double share = high > low ? (t - low) / (high - low) : 0;
            points[i] = points[i - 1] * (1 - share) + points[i] * share;
            weights[i] = weights[i - 1] * (1 - share) + weights[i] * share;
        }
    }
    return weights[degree] != 0 ? points[degree] * (1 / weights[degree]) : points[degree];
}

/// Appends a smooth curve through the points, for splines without other data.
void appendThroughPoints(Path& path, const Path& points, bool closed)
{
    const std::size_t count = points.size();
    if (count < 3) {
        path.insert(path.end(), points.begin(), points.end());
        return;
    }
    const auto at = [&](std::size_t i, int by) -> const Vec3& {
        const auto index = static_cast<std::ptrdiff_t>(i) + by;
        const auto size = static_cast<std::ptrdiff_t>(count);
        const auto wrapped =
            closed ? (index + size) % size : std::clamp(index, std::ptrdiff_t(0), size - 1);
        return points[static_cast<std::size_t>(wrapped)];
    };
    const int steps = count * kSpanSteps <= kMaxSplineSteps ? kSpanSteps : 1;
    path.push_back(points.front());
    for (std::size_t i = 0; i + (closed ? 0 : 1) < count; ++i) {
        const Vec3 tangentA = (at(i, 1) - at(i, -1)) * 0.5;
        const Vec3 tangentB = (at(i, 2) - at(i, 0)) * 0.5;
        for (int step = 1; step <= steps; ++step) {
            const double t = static_cast<double>(step) / steps;
            const double t2 = t * t;
            const double t3 = t2 * t;
            path.push_back(at(i, 0) * (2 * t3 - 3 * t2 + 1) + tangentA * (t3 - 2 * t2 + t) +
                           at(i, 1) * (3 * t2 - 2 * t3) + tangentB * (t3 - t2));
        }
    }
}

} // namespace

void appendEllipse(Path& path, const Vec3& center, const Vec3& major, const Vec3& minor,
    double start, double sweep)
{
    if (!std::isfinite(start) || !std::isfinite(sweep))
        return;
    const double turns = std::min(std::abs(sweep) / (2 * kPi), 1.0);
    const int steps = std::max(2, static_cast<int>(std::ceil(turns * kTurnSteps)));
    // Rotating step by step saves two trigonometric functions per point.
    const double turnCos = std::cos(sweep / steps);
    const double turnSin = std::sin(sweep / steps);
    double c = std::cos(start);
    double s = std::sin(start);
    for (int i = 0; i <= steps; ++i) {
        path.push_back(center + major * c + minor * s);
        const double next = c * turnCos - s * turnSin;
        s = s * turnCos + c * turnSin;
        c = next;
    }
}

void appendArc(Path& path, const Vec3& center, double radius, double start, double sweep)
{
    appendEllipse(path, center, {radius, 0, 0}, {0, radius, 0}, start, sweep);
}

void appendBulges(Path& path, const std::vector<BulgeVertex>& vertices, bool closed)
{
    if (vertices.empty())
        return;
    path.push_back(vertices.front().point);
    for (std::size_t i = 1; i < vertices.size(); ++i)
        appendBulge(path, vertices[i - 1].point, vertices[i].point, vertices[i - 1].bulge);
    if (closed && vertices.size() > 1)
        appendBulge(path, vertices.back().point, vertices.front().point, vertices.back().bulge);
}

void appendSegment(Path& path, const BulgeVertex& from, const Vec3& to)
{
    path.push_back(from.point);
    appendBulge(path, from.point, to, from.bulge);
}

void appendSpline(Path& path, const Spline& spline)
{
    if (!evaluable(spline)) {
        const Path& points = spline.fitPoints.size() > 1 ? spline.fitPoints : spline.controls;
        appendThroughPoints(path, points, spline.closed);
        return;
    }
    const std::size_t first = static_cast<std::size_t>(spline.degree);
    const std::size_t last = spline.controls.size();
    const int steps =
        std::clamp(kMaxSplineSteps / static_cast<int>(std::min<std::size_t>(last, kMaxSplineSteps)),
            1, kSpanSteps);
    path.push_back(splinePoint(spline, first, spline.knots[first]));
    for (std::size_t span = first; span < last; ++span) {
        const double low = spline.knots[span];
        const double high = spline.knots[span + 1];
        for (int step = 1; high > low && step <= steps; ++step)
            path.push_back(splinePoint(spline, span, low + (high - low) * step / steps));
    }
}

double forwardSweep(double start, double end)
{
    const double sweep = std::fmod(end - start, 2 * kPi);
    // Ends that coincide, except for rounding, mean a full turn.
    return sweep > 1e-9 ? sweep : sweep + 2 * kPi;
}

} // namespace drawing
