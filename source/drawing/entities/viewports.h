#pragma once

#include "file/tagreader.h"

namespace drawing {

/// Whether a viewport represents the sheet that it is on, because a sheet also sees itself through
/// a viewport. Such a viewport has number 1, or shows exactly its own area.
bool isSheetsOwn(const TagReader& viewport);

} // namespace drawing
