#pragma once

#include "arguments.h"
#include "drawing.h"

namespace layertool {

/// Opens a drawing according to the common options. Refuses a file that is not a DXF drawing.
drawing::Expected<std::unique_ptr<drawing::Drawing>> openDrawing(
    const QString& path, const Arguments& arguments, drawing::Progress& progress);

} // namespace layertool
