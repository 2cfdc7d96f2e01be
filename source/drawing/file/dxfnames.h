#pragma once

#include "drawingindex.h"

namespace drawing {

// What the names in a file stand for, each with "other" or null for those nobody asks for.

EntityKind entityKind(std::string_view name);
ObjectKind objectKind(std::string_view name);
TableKind tableKind(std::string_view name);
/// `HeaderVariable::Count` for a variable that is not needed.
HeaderVariable headerVariable(std::string_view name);
/// True for what follows an owner and does not count as an entity of its own.
bool isSubEntity(EntityKind kind);

} // namespace drawing
