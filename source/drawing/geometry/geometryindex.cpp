#include "geometryindex.h"

#include "geometry.h"

#include <algorithm>
#include <tuple>

namespace drawing {

namespace {

/// Spreads the lower 16 bits by inserting a zero before each.
quint32 spread(quint32 bits)
{
    bits = (bits | bits << 8) & 0x00ff00ffU;
    bits = (bits | bits << 4) & 0x0f0f0f0fU;
    bits = (bits | bits << 2) & 0x33333333U;
    return (bits | bits << 1) & 0x55555555U;
}

/// The position of a point on a space-filling curve through the extents.
quint32 keyOf(const QPointF& point, const Box& extents)
{
    constexpr double kSteps = 65535;
    const auto step = [](double value, double least, double size) {
        return size > 0 ? static_cast<quint32>((value - least) / size * kSteps) : 0;
    };
    return spread(step(point.x(), extents.minX, extents.width())) |
           spread(step(point.y(), extents.minY, extents.height())) << 1;
}

} // namespace

GeometryIndex::GeometryIndex(const Geometry& geometry)
{
    for (const GeometryGroup& group : geometry.groups)
        m_extents.add(group.bounds);
    m_primitives = bunchesOf(geometry.groups, &GeometryGroup::primitives, m_extents);
    m_texts = bunchesOf(geometry.groups, &GeometryGroup::texts, m_extents);
}

template <class Pieces>
GeometryIndex::Bunches GeometryIndex::bunchesOf(
    const std::vector<GeometryGroup>& groups, Pieces GeometryGroup::*pieces, const Box& extents)
{
    struct Entry
    {
        quint32 key; ///< Similar for pieces that are close to each other.
        Place place;
    };
    std::vector<Entry> entries;
    std::size_t count = 0;
    for (const GeometryGroup& group : groups)
        count += (group.*pieces).size();
    entries.reserve(count);
    for (quint32 group = 0; group < groups.size(); ++group) {
        quint32 index = 0;
        for (const auto& piece : groups[group].*pieces)
            entries.push_back({keyOf(piece.bounds.center(), extents), {group, index++}});
    }
    std::sort(entries.begin(), entries.end(),
        [](const Entry& a, const Entry& b) { return a.key < b.key; });
    Bunches bunches;
    bunches.places.reserve(count);
    bunches.bounds.resize((count + Bunches::kSize - 1) / Bunches::kSize);
    for (const auto& [key, place] : entries) {
        const Box& bounds = (groups[place.group].*pieces)[place.index].bounds;
        bunches.bounds[bunches.places.size() / Bunches::kSize].add(bounds);
        bunches.places.push_back(place);
    }
    return bunches;
}

std::vector<GeometryIndex::Place> GeometryIndex::placesIn(const Bunches& bunches, const Box& box)
{
    std::vector<Place> places;
    for (std::size_t i = 0; i < bunches.bounds.size(); ++i) {
        if (!bunches.bounds[i].intersects(box))
            continue;
        const std::size_t first = i * Bunches::kSize;
        const std::size_t last = std::min(first + Bunches::kSize, bunches.places.size());
        places.insert(places.end(), bunches.places.begin() + static_cast<std::ptrdiff_t>(first),
            bunches.places.begin() + static_cast<std::ptrdiff_t>(last));
    }
    std::sort(places.begin(), places.end(), [](const Place& a, const Place& b) {
        return std::tie(a.group, a.index) < std::tie(b.group, b.index);
    });
    return places;
}

bool GeometryIndex::narrows(const Box& box) const
{
    // A larger box contains nearly everything, and sorting the result costs too much.
    constexpr double kShare = 0.25;
    const double width = std::min(box.maxX, m_extents.maxX) - std::max(box.minX, m_extents.minX);
    const double height = std::min(box.maxY, m_extents.maxY) - std::max(box.minY, m_extents.minY);
    return !isEmpty() && (width < 0 || height < 0 ||
                             width * height < kShare * m_extents.width() * m_extents.height());
}

GeometryIndex::Found GeometryIndex::find(const Box& box) const
{
    return {placesIn(m_primitives, box), placesIn(m_texts, box)};
}

} // namespace drawing
