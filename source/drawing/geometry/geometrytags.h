#pragma once

#include "file/tagreader.h"
#include "geometrymath.h"

#include <string_view>
#include <vector>

namespace drawing {

/// The own tags of one entity, looked up by code.
class EntityTags
{
public:
    void load(const TagReader& reader);

    std::string_view type() const;   ///< What the `0` group says.
    const Tag* find(int code) const; ///< The first of that code.
    double number(int code, double otherwise = 0) const;
    qint64 integer(int code, qint64 otherwise = 0) const;
    /// `code`, `code + 10` and `code + 20`; missing ones are 0.
    Vec3 point(int code) const;
    /// The extrusion direction; 0,0,1 unless stated.
    Vec3 extrusion() const;

    std::vector<Tag>::const_iterator begin() const { return m_tags.begin(); }
    std::vector<Tag>::const_iterator end() const { return m_tags.end(); }

private:
    std::vector<Tag> m_tags;
};

/// Takes one coordinate of the point whose codes begin at `first`; false for tags of other codes.
bool takeCoordinate(const Tag& tag, int first, Vec3& point);

} // namespace drawing
