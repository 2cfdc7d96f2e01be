#pragma once

#include "arguments.h"
#include "drawing.h"

namespace layertool {

/// Opens a drawing as the common options want it. Refuses, in words, what is no DXF drawing.
drawing::Expected<std::unique_ptr<drawing::Drawing>> openDrawing(
    const QString& path, const Arguments& arguments, drawing::Progress& progress);

} // namespace layertool
