#pragma once

#include "vnjson.h"

namespace bench {

/// Makes a tree as the layer command passes it: "LayerList" with `count` complete records, which
/// are the same every time. The first layer is the current one, and three layers are selected.
vnsi::VnJsonPtr makeLayerTree(int count);

} // namespace bench
