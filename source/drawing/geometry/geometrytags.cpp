#include "geometrytags.h"

#include "file/owntags.h"

namespace drawing {

void EntityTags::load(const TagReader& reader)
{
    m_tags.clear();
    OwnTags own(reader);
    Tag tag;
    while (own.next(tag))
        m_tags.push_back(tag);
}

std::string_view EntityTags::type() const
{
    return m_tags.empty() ? std::string_view() : m_tags.front().trimmed();
}

const Tag* EntityTags::find(int code) const
{
    for (const Tag& tag : m_tags) {
        if (tag.code == code)
            return &tag;
    }
    return nullptr;
}

double EntityTags::number(int code, double otherwise) const
{
    const Tag* tag = find(code);
    return tag ? tag->real() : otherwise;
}

qint64 EntityTags::integer(int code, qint64 otherwise) const
{
    const Tag* tag = find(code);
    return tag ? tag->integer() : otherwise;
}

Vec3 EntityTags::point(int code) const
{
    return {number(code), number(code + 10), number(code + 20)};
}

Vec3 EntityTags::extrusion() const
{
    const bool sideways = find(210) || find(220);
    return {number(210), number(220), number(230, sideways ? 0 : 1)};
}

bool takeCoordinate(const Tag& tag, int first, Vec3& point)
{
    if (tag.code == first)
        point.x = tag.real();
    else if (tag.code == first + 10)
        point.y = tag.real();
    else if (tag.code == first + 20)
        point.z = tag.real();
    else
        return false;
    return true;
}

} // namespace drawing
