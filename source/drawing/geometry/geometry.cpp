#include "geometry.h"

#include "geometrydefinition.h"

namespace drawing {

bool operator==(const GeometryColor& a, const GeometryColor& b)
{
    return a.source == b.source && a.value == b.value;
}

bool operator==(const GeometrySetting& a, const GeometrySetting& b)
{
    return a.layer == b.layer && a.value == b.value;
}

bool operator==(const GeometryStyle& a, const GeometryStyle& b)
{
    return a.color == b.color && a.linetype == b.linetype && a.lineweight == b.lineweight &&
           a.transparency == b.transparency;
}

uint qHash(const GeometryStyle& style, uint seed)
{
    QtPrivate::QHashCombine combine;
    seed = combine(seed, static_cast<int>(style.color.source));
    seed = combine(seed, style.color.value);
    for (const GeometrySetting* setting :
        {&style.linetype, &style.lineweight, &style.transparency}) {
        seed = combine(seed, static_cast<int>(setting->layer));
        seed = combine(seed, setting->value);
    }
    return seed;
}

void Definition::clear()
{
    vertices.clear();
    shapes.clear();
    texts.clear();
    endless.clear();
    references.clear();
}

} // namespace drawing
