#pragma once

#include "entities.h"

#include <string_view>

namespace drawing {

/// The kind of an entity by its type name; `EntityKind::Other` for kinds without special treatment.
EntityKind entityKind(std::string_view name);
/// Whether the kind belongs to another entity and does not count as an entity of its own.
bool isSubEntity(EntityKind kind);

} // namespace drawing
