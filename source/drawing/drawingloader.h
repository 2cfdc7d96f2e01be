#pragma once

#include "drawingdata.h"
#include "file/error.h"
#include "file/openoptions.h"

namespace drawing {

struct Progress;

/// Indexes `data.bytes` and fills in all that is known of a drawing when it is opened. Refuses
/// what is no readable drawing, in words that call the file `fileName`.
Expected<void> loadDrawing(
    DrawingData& data, const QString& fileName, const OpenOptions& options, Progress* progress);

} // namespace drawing
