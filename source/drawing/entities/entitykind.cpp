#include "entitykind.h"

#include <algorithm>

namespace drawing {

namespace {

struct NamedKind
{
    std::string_view name;
    EntityKind kind;
};

// Sorted by name.
constexpr NamedKind kKinds[] = {
    {"3DFACE", EntityKind::Face3d},
    {"ARC", EntityKind::Arc},
    {"ATTDEF", EntityKind::AttDef},
    {"ATTRIB", EntityKind::Attrib},
    {"CIRCLE", EntityKind::Circle},
    {"DIMENSION", EntityKind::Dimension},
    {"ELLIPSE", EntityKind::Ellipse},
    {"HATCH", EntityKind::Hatch},
    {"INSERT", EntityKind::Insert},
    {"LEADER", EntityKind::Leader},
    {"LINE", EntityKind::Line},
    {"LWPOLYLINE", EntityKind::LwPolyline},
    {"MTEXT", EntityKind::MText},
    {"POINT", EntityKind::Point},
    {"POLYLINE", EntityKind::Polyline},
    {"SEQEND", EntityKind::Seqend},
    {"SOLID", EntityKind::Solid},
    {"SPLINE", EntityKind::Spline},
    {"TEXT", EntityKind::Text},
    {"TRACE", EntityKind::Trace},
    {"VERTEX", EntityKind::Vertex},
    {"VIEWPORT", EntityKind::Viewport},
};

} // namespace

EntityKind entityKind(std::string_view name)
{
    const auto* known = std::lower_bound(std::begin(kKinds), std::end(kKinds), name,
        [](const NamedKind& kind, std::string_view wanted) { return kind.name < wanted; });
    return known != std::end(kKinds) && known->name == name ? known->kind : EntityKind::Other;
}

bool isSubEntity(EntityKind kind)
{
    return kind == EntityKind::Vertex || kind == EntityKind::Attrib || kind == EntityKind::Seqend;
}

} // namespace drawing
