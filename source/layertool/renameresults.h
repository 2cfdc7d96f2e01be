#pragma once

#include "layerrenaming.h"
#include "verb.h"

namespace layertool {

/// The English word for the outcome of a rename.
const char* outcomeWord(drawing::LayerRenamed::Outcome outcome);

/// Why a rename was refused. When the name is in use, the text also explains how to merge.
QString causeOf(const drawing::LayerRenamed& renamed);

/// Adds a notice to the result when the rename was refused.
void noteRefusal(Result& result, const drawing::LayerRenamed& renamed);

} // namespace layertool
