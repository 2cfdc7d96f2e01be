#include "geometry.h"

#include "geometrybuilder.h"

namespace drawing {

bool operator==(const GeometryColor& a, const GeometryColor& b)
{
    return a.source == b.source && a.value == b.value;
}

void Definition::clear()
{
    vertices.clear();
    shapes.clear();
    texts.clear();
    endless.clear();
    references.clear();
}

Expected<Geometry> buildGeometry(const Drawing& drawing, Progress* progress)
{
    return GeometryBuilder(drawing, progress).build();
}

} // namespace drawing
