#pragma once

#include "vnjson.h"

namespace bench {

/// A tree as the layer command hands it over: "LayerList" with `count` whole records, the same ones
/// each time. The first layer is the current one, and three are selected.
vnsi::VnJsonPtr makeLayerTree(int count);

} // namespace bench
