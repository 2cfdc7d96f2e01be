#pragma once

#include "layersearch.h"

#include <optional>

/// The expression of a property filter as drawings keep it: terms `VARIABLE == "text"`, each in
/// brackets or not, joined by `and`; letter case does not count. Texts are wildcard patterns.
namespace filterexpression {

/// The test that an expression stands for; none where it cannot be understood.
std::optional<LayerTest> parsed(const QString& expression);
/// The expression for layers whose names fit a pattern.
QString ofNames(const QString& pattern);

} // namespace filterexpression
