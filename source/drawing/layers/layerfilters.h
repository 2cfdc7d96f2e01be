#pragma once

#include "layerreplacements.h"

namespace drawing {

/// Updates the layer names in the expression of a filter (`NAME == "X"`) after layers changed.
/// Everything else stays as it is: names of other layers, patterns with wildcards, and parts that
/// cannot be parsed.
QString followedExpression(const QString& expression, const LayerReplacements& replacements);

/// Updates layer names in a pattern, or in several patterns separated by commas.
QString followedPattern(const QString& pattern, const LayerReplacements& replacements);

} // namespace drawing
