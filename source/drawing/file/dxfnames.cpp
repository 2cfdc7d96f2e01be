#include "dxfnames.h"

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

constexpr std::string_view kVariables[] = {
    "$ACADVER", "$DWGCODEPAGE", "$CLAYER", "$HANDSEED", "$PSTYLEMODE", "$TILEMODE"};
static_assert(std::size(kVariables) == static_cast<size_t>(HeaderVariable::Count));

constexpr std::string_view kTables[] = {"LTYPE", "LAYER", "STYLE", "APPID", "BLOCK_RECORD"};
static_assert(std::size(kTables) == static_cast<size_t>(TableKind::Other));

constexpr std::pair<std::string_view, ObjectKind> kObjects[] = {
    {"DICTIONARY", ObjectKind::Dictionary},
    {"ACDBDICTIONARYWDFLT", ObjectKind::Dictionary},
    {"XRECORD", ObjectKind::XRecord},
    {"LAYER_FILTER", ObjectKind::LayerList},
    {"LAYER_INDEX", ObjectKind::LayerList},
    {"LAYOUT", ObjectKind::Layout},
};

} // namespace

EntityKind entityKind(std::string_view name)
{
    const auto* known = std::lower_bound(std::begin(kKinds), std::end(kKinds), name,
        [](const NamedKind& kind, std::string_view wanted) { return kind.name < wanted; });
    return known != std::end(kKinds) && known->name == name ? known->kind : EntityKind::Other;
}

ObjectKind objectKind(std::string_view name)
{
    for (const auto& [known, kind] : kObjects) {
        if (known == name)
            return kind;
    }
    return ObjectKind::Other;
}

TableKind tableKind(std::string_view name)
{
    const auto* known = std::find(std::begin(kTables), std::end(kTables), name);
    return static_cast<TableKind>(known - std::begin(kTables));
}

HeaderVariable headerVariable(std::string_view name)
{
    const auto* known = std::find(std::begin(kVariables), std::end(kVariables), name);
    return static_cast<HeaderVariable>(known - std::begin(kVariables));
}

bool isSubEntity(EntityKind kind)
{
    return kind == EntityKind::Vertex || kind == EntityKind::Attrib || kind == EntityKind::Seqend;
}

} // namespace drawing
