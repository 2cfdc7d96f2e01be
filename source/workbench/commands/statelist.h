#pragma once

#include "command.h"
#include "states/layerstate.h"
#include "vnjson.h"

/// Functions for commands that show and save layer states.
namespace statelist {

/// The entry of a state, complete except for whether the drawing is in that state.
vnsi::VnJsonPtr makeEntry(const drawing::LayerState& state);
/// Sorted by name, but the one called `last` last, where there is one.
std::vector<drawing::LayerState> sorted(
    std::vector<drawing::LayerState> states, const QString& last = {});
/// The entries of the drawing's states, sorted by name.
vnsi::VnJsonPtr make(const drawing::Drawing& drawing);
/// Tells the user when the drawing's format cannot store layer states, so that they are kept in a
/// file beside the drawing.
void tellWhereStatesAre(CommandContext& context);

} // namespace statelist
