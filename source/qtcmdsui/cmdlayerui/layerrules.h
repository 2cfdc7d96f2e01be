#pragma once

#include "layerrecord.h"

/// Which layers may become current and which may go, and what the user is told and asked about it.
namespace vnsi::layerrules {

/// Whether a layer may become the current one; the user is told where it may not.
bool mayBeCurrent(const LayerRecord& record);
/// Asks what becomes of a layer that is off when it becomes current; true to turn it on.
bool asksToTurnOn();

/// Marks the selected layers for deletion, or unmarks them where they were marked; how many may
/// not be deleted.
int toggleDeletion(const LayerRecordList& layers);
/// Tells how many of the selected layers cannot be deleted.
void tellNotDeleted(int refused, int selected);

} // namespace vnsi::layerrules
