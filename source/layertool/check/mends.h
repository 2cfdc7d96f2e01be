#pragma once

#include "rules.h"
#include "verb.h"

namespace layertool {

/// Whether `mendDrawing` can correct what a rule finds.
bool isMended(const Rule& rule);

/// Corrects, in the open step, those findings of `checkDrawing` that need no decision: names,
/// layers and properties that the standard defines, properties that entities define themselves, and
/// unused layers. `result` receives the counts of corrections and the refusals. An error does not
/// undo anything; the caller rolls the step back.
Expected<void> mendDrawing(drawing::Drawing& drawing, const LayerRules& rules, Result& result);

} // namespace layertool
