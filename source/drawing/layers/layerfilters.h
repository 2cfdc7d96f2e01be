#pragma once

#include "layerreplacements.h"

namespace drawing {

/// The expression of a layer filter in which terms that name a layer (`NAME == "X"`) name what
/// became of it. What is no name of a layer that changed, patterns with wildcards above all, and
/// what cannot be understood stays as it is.
QString followedExpression(const QString& expression, const LayerReplacements& replacements);

/// A pattern of layer names, or some with commas between them.
QString followedPattern(const QString& pattern, const LayerReplacements& replacements);

} // namespace drawing
