#pragma once

#include "layerrecord.h"

/// The rules for which layers may become current or be deleted, with their messages and questions.
namespace vnsi::layerrules {

/// Whether a layer may become the current one. If not, the user is told why.
bool mayBeCurrent(const LayerRecord& record);
/// Asks whether a layer that is off and becomes current is to be turned on. Returns true for yes.
bool asksToTurnOn();

/// Marks the selected layers for deletion, or removes the mark from those that have it. Returns how
/// many of them cannot be deleted.
int toggleDeletion(const LayerRecordList& layers);
/// Tells the user how many of the selected layers cannot be deleted.
void tellNotDeleted(int refused, int selected);

} // namespace vnsi::layerrules
