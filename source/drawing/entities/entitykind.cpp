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
    {"ACAD_PROXY_ENTITY", EntityKind::Proxy},
    {"ATTRIB", EntityKind::Attrib},
    {"INSERT", EntityKind::Insert},
    {"POLYLINE", EntityKind::Polyline},
    {"SEQEND", EntityKind::Seqend},
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
