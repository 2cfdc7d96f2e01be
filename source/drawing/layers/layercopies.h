#pragma once

#include "layer.h"

#include <vector>

namespace drawing {

/// Whether two layers are the same in every respect.
bool isSame(const Layer& a, const Layer& b);

/// Makes `kept` equal to `layers`. Only what differs is written: an edit changes few of the layers,
/// and with very many of them, copying and releasing all the others takes a noticeable time.
void followLayers(std::vector<Layer>& kept, const std::vector<Layer>& layers);

} // namespace drawing
