#pragma once

#include "rules.h"
#include "verb.h"

namespace layertool {

/// Whether `mendDrawing` sees to what a rule finds.
bool isMended(const Rule& rule);

/// Mends in the open step what needs no question of what `checkDrawing` finds: the names, layers
/// and properties of the standard, entities' own properties, layers nobody uses. Counts in `result`
/// what was done, and notes there what was refused. An error takes back nothing: the caller rolls
/// back.
Expected<void> mendDrawing(drawing::Drawing& drawing, const LayerRules& rules, Result& result);

} // namespace layertool
