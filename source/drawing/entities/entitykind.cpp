#include "entitykind.h"

#include <algorithm>

namespace drawing {

namespace {

struct NamedKind
{
    std::string_view name;
    EntityKind kind;
};

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
    constexpr std::string_view kFirstLetters = "AIPSV"; // Excludes most names immediately.
    if (name.empty() || kFirstLetters.find(name.front()) == std::string_view::npos)
        return EntityKind::Other;
    const auto* const known = std::find_if(std::begin(kKinds), std::end(kKinds),
        [name](const NamedKind& kind) { return kind.name == name; });
    return known != std::end(kKinds) ? known->kind : EntityKind::Other;
}

bool isSubEntity(EntityKind kind)
{
    return kind == EntityKind::Vertex || kind == EntityKind::Attrib || kind == EntityKind::Seqend;
}

} // namespace drawing
