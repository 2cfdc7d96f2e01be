#pragma once

#include "drawing.h"
#include "vnjson.h"

/// The layers of a layer state as the records that the editor works on, and back.
namespace staterecords {

/// The records of a state's layers, in their order.
vnsi::VnJsonPtr make(const drawing::LayerState& state);
/// Drops the layers whose records are marked as removed.
void takeRemoved(drawing::LayerState& state, const vnsi::VnJsonPtr& records);
/// Takes over what the records say. Layers that the state did not hold begin as the drawing has
/// them; what records have no place for stays.
void takeEdited(
    drawing::LayerState& state, const vnsi::VnJsonPtr& records, const drawing::Drawing& drawing);

} // namespace staterecords
