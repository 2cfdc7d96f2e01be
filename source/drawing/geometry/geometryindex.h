#pragma once

#include "geometrymath.h"

#include <vector>

namespace drawing {

struct Geometry;

/// Tells what lies near a place without looking at all of a geometry.
class GeometryIndex
{
public:
    /// One of the primitives or texts of a geometry.
    struct Place
    {
        quint32 group = 0;
        quint32 index = 0;
    };
    /// What may reach into a box: places in the order of groups, and within these of indices.
    struct Found
    {
        std::vector<Place> primitives;
        std::vector<Place> texts;
    };

    GeometryIndex() = default;
    explicit GeometryIndex(const Geometry& geometry);

    bool isEmpty() const { return m_primitives.places.empty() && m_texts.places.empty(); }
    /// Whether the box is so much smaller than what was indexed that searching pays.
    bool narrows(const Box& box) const;
    /// What may reach into the box, of those that the geometry had when it was indexed.
    Found find(const Box& box) const;

private:
    /// Places, those near each other next to each other, and the bounds of so many at a time.
    struct Bunches
    {
        static constexpr std::size_t kSize = 32;

        std::vector<Place> places;
        std::vector<Box> bounds;
    };
    struct Entry;

    static Bunches bunchesOf(std::vector<Entry> entries, const Box& extents);
    static std::vector<Place> placesIn(const Bunches& bunches, const Box& box);

    Box m_extents;
    Bunches m_primitives;
    Bunches m_texts;
};

} // namespace drawing
