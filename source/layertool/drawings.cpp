#include "drawings.h"

namespace layertool {

drawing::Expected<std::unique_ptr<drawing::Drawing>> openDrawing(
    const QString& path, const Arguments&, drawing::Progress& progress)
{
    return drawing::Drawing::open(path, &progress);
}

} // namespace layertool
