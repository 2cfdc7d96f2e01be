#pragma once

#include "file/tagreader.h"
#include "geometrymath.h"

#include <string_view>
#include <vector>

namespace drawing {

/// The own tags of one entity, with look-up by group code.
class EntityTags
{
public:
    void load(const TagReader& reader);

    std::string_view type() const;   ///< The value of the `0` group.
    const Tag* find(int code) const; ///< The first tag with this code; null when there is none.
    double number(int code, double otherwise = 0) const;
    qint64 integer(int code, qint64 otherwise = 0) const;
    /// The point with the codes `code`, `code + 10` and `code + 20`; missing coordinates are 0.
    Vec3 point(int code) const;
    /// The extrusion direction; (0, 0, 1) when the entity has none.
    Vec3 extrusion() const;

    std::vector<Tag>::const_iterator begin() const { return m_tags.begin(); }
    std::vector<Tag>::const_iterator end() const { return m_tags.end(); }

private:
    std::vector<Tag> m_tags;
};

/// Stores the tag's value when it is a coordinate of the point whose codes begin at `first`.
/// Returns false for tags with other codes.
bool takeCoordinate(const Tag& tag, int first, Vec3& point);

} // namespace drawing
