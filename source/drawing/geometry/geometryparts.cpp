#include "entities/entitytable.h"
#include "geometrybuilder.h"

#include <cmath>
#include <limits>
#include <map>

namespace drawing {

namespace {

/// Clips the line at the box. Returns false when nothing is left.
bool clip(const EndlessLine& line, const Box& box, QPointF ends[2])
{
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    LineRange range{line.bothWays ? -kEndless : 0, kEndless};
    const bool isLeft = range.clip(line.from, line.direction, box) && range.low < range.high;
    if (!isLeft || !std::isfinite(range.low) || !std::isfinite(range.high))
        return false;
    ends[0] = line.from + line.direction * range.low;
    ends[1] = line.from + line.direction * range.high;
    return true;
}

void addLine(GeometryGroup& group, const EndlessLine& line, const Box& extents)
{
    QPointF ends[2];
    if (!clip(line, extents, ends))
        return;
    Primitive primitive;
    primitive.first = static_cast<quint32>(group.vertices.size());
    primitive.count = 2;
    primitive.entity = line.entity;
    primitive.order = line.order;
    for (const QPointF& end : ends) {
        group.vertices.push_back(end);
        primitive.bounds.add(end);
    }
    group.bounds.add(primitive.bounds);
    group.primitives.push_back(primitive);
}

void addExtents(Box& extents, const Geometry& part)
{
    for (const GeometryGroup& group : part.groups)
        extents.add(group.bounds);
    for (const EndlessLine& line : part.endless)
        extents.add(line.from);
}

} // namespace

GeometryRoom::GeometryRoom(const GeometryAmount& room)
    : m_vertices(room.vertices),
      m_pieces(room.pieces),
      m_instances(room.instances)
{
}

bool GeometryRoom::isFull(const GeometryAmount& used) const
{
    constexpr auto kOrder = std::memory_order_relaxed;
    return used.vertices >= m_vertices.load(kOrder) || used.pieces >= m_pieces.load(kOrder) ||
           used.instances >= m_instances.load(kOrder);
}

void GeometryRoom::take(const GeometryAmount& used)
{
    m_vertices -= used.vertices;
    m_pieces -= used.pieces;
    m_instances -= used.instances;
}

std::vector<EntityRange> geometryRanges(const std::vector<Entity>& entities, std::size_t length)
{
    std::vector<EntityRange> ranges;
    for (std::size_t first = 0; first < entities.size();) {
        std::size_t last = std::min(first + length, entities.size());
        while (last < entities.size() && entities[last].subEntity)
            ++last;
        ranges.push_back({first, last});
        first = last;
    }
    return ranges;
}

Geometry endlessLines(const std::vector<GeometryPart>& parts)
{
    Box extents;
    for (const GeometryPart& part : parts)
        addExtents(extents, *part);
    Geometry drawn;
    drawn.isEndless = true;
    if (!parts.empty()) {
        drawn.switches = parts.front()->switches;
        drawn.linetypes = parts.front()->linetypes;
    }
    for (const GeometryPart& part : parts) {
        drawn.entities.last = std::max(drawn.entities.last, part->entities.last);
        std::map<std::size_t, std::size_t> groups;
        for (const EndlessLine& line : part->endless) {
            const auto [known, isNew] = groups.try_emplace(line.group, drawn.groups.size());
            if (isNew) {
                const GeometryGroup& source = part->groups[line.group];
                GeometryGroup& group = drawn.groups.emplace_back();
                group.layer = source.layer;
                group.whole = source.whole;
                group.isThroughViewports = source.isThroughViewports;
                group.style = source.style;
                group.owners = static_cast<int>(drawn.owners.size());
                drawn.owners.push_back(part->owners[static_cast<std::size_t>(source.owners)]);
            }
            addLine(drawn.groups[known->second], line, extents);
        }
    }
    return drawn;
}

Expected<Geometry> buildGeometry(const GeometrySource& source, Progress* progress)
{
    GeometryRoom room;
    auto geometry =
        GeometryBuilder(source, room, progress).build({0, source.entities.all().size()});
    if (!geometry)
        return geometry;
    Box extents;
    addExtents(extents, *geometry);
    for (const EndlessLine& line : geometry->endless)
        addLine(geometry->groups[line.group], line, extents);
    geometry->endless.clear();
    return geometry;
}

} // namespace drawing
