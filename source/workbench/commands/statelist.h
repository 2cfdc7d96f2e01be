#pragma once

#include "command.h"
#include "states/layerstate.h"
#include "vnjson.h"

/// Functions for commands that show and save layer states.
namespace statelist {

/// The entry of a state, complete except for whether the drawing is in that state.
vnsi::VnJsonPtr makeEntry(const drawing::LayerState& state);
/// The entries of the drawing's states.
vnsi::VnJsonPtr make(const drawing::Drawing& drawing);
/// Tells the user when the drawing's format cannot store layer states, so that they are kept in a
/// file beside the drawing.
void tellWhereStatesAre(CommandContext& context);

} // namespace statelist
