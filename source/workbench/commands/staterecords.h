#pragma once

#include "drawing.h"
#include "vnjson.h"

/// Converts the layers of a layer state to the records that the editor works on, and back.
namespace staterecords {

/// The records of a state's layers in their order.
vnsi::VnJsonPtr make(const drawing::LayerState& state);
/// Removes the layers whose records are marked as removed.
void takeRemoved(drawing::LayerState& state, const vnsi::VnJsonPtr& records);
/// Copies the edited records into the state. A layer that the state did not contain starts with its
/// properties in the drawing. Properties that records do not hold stay as they are.
void takeEdited(
    drawing::LayerState& state, const vnsi::VnJsonPtr& records, const drawing::Drawing& drawing);

} // namespace staterecords
