#pragma once

#include "layersearch.h"

#include <optional>

/// The expression of a property filter in the form that drawings store: terms `VARIABLE == "text"`,
/// optionally in brackets, joined by `and`. Letter case is ignored. The texts are wildcard
/// patterns.
namespace filterexpression {

/// The test for an expression; nothing when it cannot be understood.
std::optional<LayerTest> parsed(const QString& expression);
/// The expression for layers whose names match a pattern.
QString ofNames(const QString& pattern);

} // namespace filterexpression
