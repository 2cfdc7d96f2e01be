#pragma once

#include "layerrecord.h"

class QWidget;

/// Edits of single layers that the tables of layers have in common.
namespace vnsi::layeredits {

/// Asks whether the current layer, about to be turned off, is to stay on.
bool asksToKeepCurrentOn();
/// Tells that the current layer cannot be frozen.
void refuseToFreezeCurrent();
/// Lets the user choose another colour in the host's dialog, whose tree is `question`; true when
/// the record holds a new one.
bool editColor(LayerRecord record, const VnJsonPtr& question, QWidget* parent);
/// Lets the user choose another transparency; true when the record holds a new one.
bool editTransparency(LayerRecord record);

} // namespace vnsi::layeredits
