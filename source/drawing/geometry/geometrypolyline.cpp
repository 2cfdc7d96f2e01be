#include "geometrypolyline.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace drawing {

namespace {

enum PolylineFlag {
    Closed = 1,
    Fitted = 2 | 4,
    Spatial = 8,
    Grid = 16,
    ClosedAcross = 32,
    Faces = 64,
    Continuous = 128
};
enum VertexFlag { Smoothed = 8, Control = 16, FaceVertex = 64, FaceRecord = 128 };

void appendEdge(Path& path, const Vec3& from, const Vec3& to)
{
    path.insert(path.end(), {from, to, pathBreak()});
}

} // namespace

Vec3 pathBreak()
{
    return {std::numeric_limits<double>::quiet_NaN(), 0, 0};
}

Polyline::Polyline(const EntityTags& head) : m_head(head), m_flags(head.integer(70)) {}

void Polyline::add(const EntityTags& vertex)
{
    if (vertex.type() != "VERTEX")
        return;
    PolylineVertex added;
    added.point = vertex.point(10);
    added.bulge = vertex.number(42);
    added.startWidth = vertex.number(40, m_head.number(40));
    added.endWidth = vertex.number(41, m_head.number(41));
    added.flags = vertex.integer(70);
    for (std::size_t i = 0; i < added.corners.size(); ++i)
        added.corners[i] = vertex.integer(71 + static_cast<int>(i));
    if (added.point.isFinite())
        m_vertices.push_back(added);
}

bool Polyline::isPlanar() const
{
    return !(m_flags & (Spatial | Grid | Faces));
}

Path Polyline::lines() const
{
    return m_flags & Faces ? faces() : grid();
}

bool Polyline::isFlat() const
{
    return !(m_flags & (Grid | Faces));
}

bool Polyline::isClosed() const
{
    return m_flags & Closed;
}

bool Polyline::isContinuous() const
{
    return m_flags & (Continuous | Fitted);
}

std::vector<BulgeVertex> Polyline::vertices() const
{
    std::vector<BulgeVertex> vertices;
    for (const PolylineVertex& vertex : m_vertices) {
        if (!(vertex.flags & Control))
            vertices.push_back({vertex.point, vertex.bulge, vertex.startWidth, vertex.endWidth});
    }
    return vertices;
}

Path Polyline::grid() const
{
    const bool smooth = m_head.integer(75) != 0;
    Path points;
    for (const PolylineVertex& vertex : m_vertices) {
        if (((vertex.flags & Smoothed) != 0) == smooth)
            points.push_back(vertex.point);
    }
    const auto size = static_cast<qint64>(points.size());
    const qint64 rows = m_head.integer(smooth ? 73 : 71);
    const qint64 columns = m_head.integer(smooth ? 74 : 72);
    if (rows < 1 || columns < 1 || rows > size || columns > size || rows * columns > size)
        return {};
    Path path;
    const auto addRun = [&](qint64 start, qint64 step, qint64 count, bool closed) {
        for (qint64 i = 0; i < count + (closed ? 1 : 0); ++i)
            path.push_back(points[static_cast<std::size_t>(start + i % count * step)]);
        path.push_back(pathBreak());
    };
    for (qint64 row = 0; row < rows; ++row)
        addRun(row * columns, 1, columns, m_flags & ClosedAcross);
    for (qint64 column = 0; column < columns; ++column)
        addRun(column, columns, rows, m_flags & Closed);
    return path;
}

/// The edges of the faces. Vertices come first and faces refer to them by number; a negative number
/// makes the following edge invisible.
Path Polyline::faces() const
{
    Path points;
    Path path;
    const auto at = [&points](qint64 number) {
        const qint64 index = std::abs(number) - 1;
        return index >= 0 && index < static_cast<qint64>(points.size())
                   ? points[static_cast<std::size_t>(index)]
                   : pathBreak();
    };
    for (const PolylineVertex& vertex : m_vertices) {
        if (vertex.flags & FaceVertex) {
            points.push_back(vertex.point);
            continue;
        }
        if (!(vertex.flags & FaceRecord))
            continue;
        const auto& corners = vertex.corners;
        const auto end = std::find(corners.begin(), corners.end(), 0);
        for (auto corner = corners.begin(); corner != end; ++corner) {
            const auto next = corner + 1 == end ? corners.begin() : corner + 1;
            if (*corner > 0)
                appendEdge(path, at(*corner), at(*next));
        }
    }
    return path;
}

Path meshEdges(const EntityTags& mesh)
{
    Path points;
    std::vector<std::size_t> list; // Faces: repeatedly a count and that many vertex indices from 0.
    bool inFaces = false;
    for (const Tag& tag : mesh) {
        if (tag.code == 93 || tag.code == 94)
            inFaces = tag.code == 93;
        else if (tag.code == 90 && inFaces)
            list.push_back(static_cast<std::size_t>(std::max<qint64>(0, tag.integer())));
        else if (tag.code == 10)
            points.push_back({tag.real(), 0, 0});
        else if (tag.code == 20 && !points.empty())
            points.back().y = tag.real();
        else if (tag.code == 30 && !points.empty())
            points.back().z = tag.real();
    }
    Path path;
    for (std::size_t face = 0; face < list.size(); face += list[face] + 1) {
        const std::size_t corners = list[face];
        if (corners >= list.size() - face)
            break;
        for (std::size_t i = 0; i < corners; ++i) {
            const std::size_t from = list[face + 1 + i];
            const std::size_t to = list[face + 1 + (i + 1) % corners];
            if (from < points.size() && to < points.size())
                appendEdge(path, points[from], points[to]);
        }
    }
    return path;
}

} // namespace drawing
