#pragma once

#include "file/tagreader.h"

namespace drawing {

/// Whether a viewport is the sheet that it stands on, which sees itself through a viewport too: it
/// has number 1, or shows its own place as it is.
bool isSheetsOwn(const TagReader& viewport);

} // namespace drawing
