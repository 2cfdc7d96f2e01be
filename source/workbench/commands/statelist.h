#pragma once

#include "command.h"
#include "states/layerstate.h"
#include "vnjson.h"

/// What the commands share that show and save layer states.
namespace statelist {

/// The entry of a state: all but whether the drawing is in it.
vnsi::VnJsonPtr makeEntry(const drawing::LayerState& state);
/// The entries of the drawing's states.
vnsi::VnJsonPtr make(const drawing::Drawing& drawing);
/// Says so where the drawing's format has no place for layer states, which then live in a file
/// beside it.
void tellWhereStatesAre(CommandContext& context);

} // namespace statelist
