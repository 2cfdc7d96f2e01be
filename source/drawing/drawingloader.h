#pragma once

#include "drawingdata.h"
#include "file/error.h"
#include "file/openoptions.h"

namespace drawing {

struct Progress;

/// Indexes `data.bytes` and fills in everything that is known about a drawing when it is opened.
/// Refuses a file that is not a readable drawing; the error calls the file `fileName`.
Expected<void> loadDrawing(
    DrawingData& data, const QString& fileName, const OpenOptions& options, Progress* progress);

} // namespace drawing
