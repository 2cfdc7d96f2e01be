#pragma once

#include "geometrymath.h"

#include <vector>

namespace drawing {

struct Geometry;
struct GeometryGroup;

/// Finds what lies near a place without visiting a whole geometry.
class GeometryIndex
{
public:
    /// A reference to one primitive or text of a geometry.
    struct Place
    {
        quint32 group = 0;
        quint32 index = 0;
    };
    /// What may overlap a box. The places are sorted by group and by the index within the group.
    struct Found
    {
        std::vector<Place> primitives;
        std::vector<Place> texts;
    };

    GeometryIndex() = default;
    explicit GeometryIndex(const Geometry& geometry);

    bool isEmpty() const { return m_primitives.places.empty() && m_texts.places.empty(); }
    /// Whether the box is so much smaller than the indexed geometry that a search saves time.
    bool narrows(const Box& box) const;
    /// Everything that may overlap the box, as far as the geometry contained it when it was
    /// indexed.
    Found find(const Box& box) const;

private:
    /// Places, sorted so that neighbours are close together, and the bounds of each `kSize` of
    /// them.
    struct Bunches
    {
        static constexpr std::size_t kSize = 32;

        std::vector<Place> places;
        std::vector<Box> bounds;
    };

    /// Sorts the pieces of all groups that a member of the group holds.
    template <class Pieces>
    static Bunches bunchesOf(const std::vector<GeometryGroup>& groups,
        Pieces GeometryGroup::*pieces, const Box& extents);
    static std::vector<Place> placesIn(const Bunches& bunches, const Box& box);

    Box m_extents;
    Bunches m_primitives;
    Bunches m_texts;
};

} // namespace drawing
