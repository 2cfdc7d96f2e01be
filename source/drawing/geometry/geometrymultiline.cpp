#include "geometrymultiline.h"

#include "geometrypolyline.h"

namespace drawing {

namespace {

constexpr qint64 kClosed = 2;

/// A vertex and the data about the lines that pass it.
struct Vertex
{
    Vec3 point;
    Vec3 direction; ///< The direction of the segment that begins here.
    Vec3 miter;     ///< The direction in which the lines are arranged side by side.
    /// For each line, its offset along the miter, followed by the positions along the segment where
    /// drawing alternately starts and stops.
    std::vector<std::vector<double>> lines;

    Vec3 base(std::size_t line) const
    {
        const bool isThere = line < lines.size() && !lines[line].empty();
        return isThere ? point + miter * lines[line].front() : point;
    }
};

std::vector<Vertex> readVertices(const EntityTags& tags)
{
    constexpr int kPoint = 11;
    constexpr int kLine = 74; ///< The count of numbers that follow for a line.
    constexpr int kNumber = 41;
    std::vector<Vertex> vertices;
    for (const Tag& tag : tags) {
        if (tag.code == kPoint)
            vertices.emplace_back();
        if (vertices.empty())
            continue;
        Vertex& vertex = vertices.back();
        if (tag.code == kLine)
            vertex.lines.emplace_back();
        else if (tag.code == kNumber && !vertex.lines.empty())
            vertex.lines.back().push_back(tag.real());
        else if (!takeCoordinate(tag, kPoint, vertex.point) &&
                 !takeCoordinate(tag, kPoint + 1, vertex.direction))
            takeCoordinate(tag, kPoint + 2, vertex.miter);
    }
    return vertices;
}

/// Appends one line of a segment with its gaps.
void appendSegment(Path& path, const Vertex& from, const Vertex& to, std::size_t line)
{
    /// The index of the numbers after the start of the first stretch.
    constexpr std::size_t kCuts = 2;
    const Vec3 start = from.base(line);
    const Vec3 end = to.base(line);
    const bool isCut = line < from.lines.size() && from.lines[line].size() > kCuts;
    if (!isCut) {
        path.push_back(start);
        path.push_back(end);
        return;
    }
    const std::vector<double>& numbers = from.lines[line];
    for (std::size_t i = 1; i < numbers.size(); i += 2) {
        path.push_back(start + from.direction * numbers[i]);
        path.push_back(i + 1 < numbers.size() ? start + from.direction * numbers[i + 1] : end);
        path.push_back(pathBreak());
    }
}

} // namespace

std::vector<Path> multiLineElements(const EntityTags& multiLine)
{
    const std::vector<Vertex> vertices = readVertices(multiLine);
    std::vector<Path> elements(vertices.empty() ? 0 : vertices.front().lines.size());
    const bool isClosed = multiLine.integer(71) & kClosed;
    for (std::size_t line = 0; line < elements.size(); ++line) {
        for (std::size_t i = 0; i + 1 < vertices.size(); ++i)
            appendSegment(elements[line], vertices[i], vertices[i + 1], line);
        if (isClosed && vertices.size() > 1)
            appendSegment(elements[line], vertices.back(), vertices.front(), line);
    }
    return elements;
}

} // namespace drawing
