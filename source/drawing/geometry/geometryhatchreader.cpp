#include "geometryhatchreader.h"

#include <algorithm>

namespace drawing {

namespace {

constexpr int kPolylineLoop = 2; ///< A bit in the type of a loop.

} // namespace

void HatchReader::take(const Tag& tag)
{
    if (tag.code == 92 && m_part != Part::Tail && m_part != Part::Pattern) {
        finishLoop();
        m_part = tag.integer() & kPolylineLoop ? Part::PolylineLoop : Part::EdgeLoop;
        return;
    }
    if (tag.code == 75 && m_part != Part::Tail) {
        finishLoop();
        m_part = Part::Pattern;
        return;
    }
    switch (m_part) {
    case Part::Head:
        return takeHead(tag);
    case Part::PolylineLoop:
        return takePolyline(tag);
    case Part::EdgeLoop:
        return takeEdge(tag);
    case Part::Pattern:
    case Part::Tail:
        return takePattern(tag);
    }
}

void HatchReader::finish()
{
    finishLoop();
}

void HatchReader::takeHead(const Tag& tag)
{
    if (tag.code == 70)
        m_solid = tag.integer() == 1;
}

void HatchReader::takePolyline(const Tag& tag)
{
    if (tag.code == 10)
        m_vertices.push_back({{tag.real(), 0, 0}, 0});
    else if (tag.code == 20 && !m_vertices.empty())
        m_vertices.back().point.y = tag.real();
    else if (tag.code == 42 && !m_vertices.empty())
        m_vertices.back().bulge = tag.real();
}

void HatchReader::takeEdge(const Tag& tag)
{
    switch (tag.code) {
    case 72: {
        finishEdge();
        const qint64 kind = tag.integer();
        m_edge.kind = kind >= 1 && kind <= 4 ? static_cast<EdgeKind>(kind) : EdgeKind::None;
        return;
    }
    case 10:
        m_edge.points.push_back({tag.real(), 0, 0});
        return;
    case 11:
        m_edge.seconds.push_back({tag.real(), 0, 0});
        return;
    case 20:
    case 21: {
        Path& path = tag.code == 20 ? m_edge.points : m_edge.seconds;
        if (!path.empty())
            path.back().y = tag.real();
        return;
    }
    case 50:
        m_edge.start = tag.real() * kDegree;
        return;
    case 51:
        m_edge.end = tag.real() * kDegree;
        return;
    default:
        takeSpline(tag);
    }
}

/// Handles the group codes whose meaning depends on the kind of edge.
void HatchReader::takeSpline(const Tag& tag)
{
    const bool spline = m_edge.kind == EdgeKind::Spline;
    if (tag.code == 40 && spline)
        m_edge.spline.knots.push_back(tag.real());
    else if (tag.code == 40)
        m_edge.size = tag.real();
    else if (tag.code == 42 && spline)
        m_edge.spline.weights.push_back(tag.real());
    else if (tag.code == 73 && !spline)
        m_edge.forward = tag.integer() != 0;
    else if (tag.code == 94)
        m_edge.spline.degree = static_cast<int>(std::clamp<qint64>(tag.integer(), 0, 100));
}

void HatchReader::takePattern(const Tag& tag)
{
    // The pattern is followed by seed points and the gradient.
    if (tag.code == 98)
        m_part = Part::Tail;
    if (tag.code == 450 && tag.integer() == 1)
        m_solid = true;
    if (m_part == Part::Tail)
        return;
    if (tag.code == 53)
        m_pattern.push_back({tag.real(), {}, {}, {}});
    if (m_pattern.empty())
        return;
    PatternLine& line = m_pattern.back();
    switch (tag.code) {
    case 43:
        line.base.x = tag.real();
        return;
    case 44:
        line.base.y = tag.real();
        return;
    case 45:
        line.offset.x = tag.real();
        return;
    case 46:
        line.offset.y = tag.real();
        return;
    case 49:
        line.dashes.push_back(tag.real());
        return;
    default:
        return;
    }
}

void HatchReader::finishEdge()
{
    Path path;
    // The angles of clockwise arcs are mirrored.
    const double turn = m_edge.forward ? 1 : -1;
    const double sweep = turn * forwardSweep(m_edge.start, m_edge.end);
    const Vec3 center = m_edge.points.empty() ? Vec3() : m_edge.points.front();
    const Vec3 major = m_edge.seconds.empty() ? Vec3() : m_edge.seconds.front();
    switch (m_edge.kind) {
    case EdgeKind::None:
        break;
    case EdgeKind::Line:
        path = {center, major};
        break;
    case EdgeKind::Arc:
        appendArc(path, center, m_edge.size, turn * m_edge.start, sweep);
        break;
    case EdgeKind::Ellipse:
        appendEllipse(path, center, major, Vec3{-major.y, major.x, 0} * m_edge.size,
            turn * m_edge.start, sweep);
        break;
    case EdgeKind::Spline:
        m_edge.spline.controls = m_edge.points;
        m_edge.spline.fitPoints = m_edge.seconds;
        appendSpline(path, m_edge.spline);
        break;
    }
    m_edge = {};
    if (path.empty())
        return;
    joinLoop(std::move(path));
}

/// Joins an edge to the loop. Edges are in order, but each may have either direction.
void HatchReader::joinLoop(Path path)
{
    const auto reach = [&path](const Vec3& end) {
        return std::min((end - path.front()).length(), (end - path.back()).length());
    };
    if (m_loopEdges == 1 && reach(m_loop.front()) < reach(m_loop.back()))
        std::reverse(m_loop.begin(), m_loop.end());
    if (m_loopEdges > 0 &&
        (m_loop.back() - path.back()).length() < (m_loop.back() - path.front()).length())
        std::reverse(path.begin(), path.end());
    m_loop.insert(m_loop.end(), path.begin(), path.end());
    ++m_loopEdges;
}

void HatchReader::finishLoop()
{
    finishEdge();
    appendBulges(m_loop, m_vertices, true);
    m_vertices.clear();
    const bool finite = std::all_of(
        m_loop.begin(), m_loop.end(), [](const Vec3& vertex) { return vertex.isFinite(); });
    if (finite && m_loop.size() > 2)
        m_loops.push_back(std::move(m_loop));
    m_loop.clear();
    m_loopEdges = 0;
}

} // namespace drawing
