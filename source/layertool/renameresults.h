#pragma once

#include "layerrenaming.h"
#include "verb.h"

namespace layertool {

/// The English word for what became of a rename.
const char* outcomeWord(drawing::LayerRenamed::Outcome outcome);

/// Why a rename was refused; where the name is taken, with the way to merge.
QString causeOf(const drawing::LayerRenamed& renamed);

/// Notes the rename in the result, if it was refused.
void noteRefusal(Result& result, const drawing::LayerRenamed& renamed);

} // namespace layertool
