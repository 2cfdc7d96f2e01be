#pragma once

#include "entities.h"

#include <string_view>

namespace drawing {

/// `EntityKind::Other` for kinds that nobody asks for.
EntityKind entityKind(std::string_view name);
/// True for what follows an owner and does not count as an entity of its own.
bool isSubEntity(EntityKind kind);

} // namespace drawing
