#include "geometrywidths.h"

#include "geometrypolyline.h"

#include <algorithm>
#include <cmath>

namespace drawing {

namespace {

/// The width that all segments share; nothing when their widths differ.
std::optional<double> commonWidth(const std::vector<BulgeVertex>& vertices, std::size_t segments)
{
    const double width = vertices.front().startWidth;
    const bool isCommon =
        std::all_of(vertices.begin(), vertices.begin() + static_cast<std::ptrdiff_t>(segments),
            [width](const BulgeVertex& vertex) {
                return vertex.startWidth == width && vertex.endWidth == width;
            });
    return isCommon ? std::optional(width) : std::nullopt;
}

/// The outline of a segment whose width changes from end to end.
Path taperedSegment(const BulgeVertex& from, const Vec3& to)
{
    Path middle;
    appendSegment(middle, from, to);
    const auto last = static_cast<double>(middle.size() - 1);
    Path left;
    Path right;
    for (std::size_t i = 0; i < middle.size(); ++i) {
        const Vec3 way = (middle[std::min(i + 1, middle.size() - 1)] - middle[i > 0 ? i - 1 : 0]);
        const Vec3 across = Vec3::cross({0, 0, 1}, way).normalized();
        const double share = static_cast<double>(i) / last;
        const double half = (from.startWidth * (1 - share) + from.endWidth * share) / 2;
        left.push_back(middle[i] + across * half);
        right.push_back(middle[i] - across * half);
    }
    left.insert(left.end(), right.rbegin(), right.rend());
    return left;
}

} // namespace

PolylinePicture pictureOf(
    const std::vector<BulgeVertex>& vertices, bool isClosed, bool isContinuous)
{
    PolylinePicture picture;
    if (vertices.empty())
        return picture;
    const std::size_t segments = vertices.size() - (isClosed && vertices.size() > 1 ? 0 : 1);
    const auto next = [&](std::size_t i) { return vertices[(i + 1) % vertices.size()].point; };
    const bool hasArcs = std::any_of(vertices.begin(), vertices.end(),
        [](const BulgeVertex& vertex) { return vertex.bulge != 0; });
    const std::optional<double> width = commonWidth(vertices, segments);
    picture.width = std::isfinite(width.value_or(0)) ? width.value_or(0) : 0;
    // The chords of an arc must share one run of the linetype.
    const bool splits = hasArcs && !isContinuous && picture.width <= 0;
    picture.patternRestarts = !isContinuous && !splits && !hasArcs;
    if (width && !splits) {
        appendBulges(picture.lines, vertices, isClosed);
        return picture;
    }
    for (std::size_t i = 0; i < segments; ++i) {
        const BulgeVertex& from = vertices[i];
        if (from.startWidth > 0 || from.endWidth > 0) {
            picture.surfaces.push_back(taperedSegment(from, next(i)));
            continue;
        }
        appendSegment(picture.lines, from, next(i));
        picture.lines.push_back(pathBreak());
    }
    return picture;
}

} // namespace drawing
