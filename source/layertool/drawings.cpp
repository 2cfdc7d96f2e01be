#include "drawings.h"

namespace layertool {

drawing::Expected<std::unique_ptr<drawing::Drawing>> openDrawing(
    const QString& path, const Arguments& arguments, drawing::Progress& progress)
{
    drawing::OpenOptions options;
    options.codePage = arguments.value("encoding").toUtf8();
    return drawing::Drawing::open(path, &progress, nullptr, options);
}

} // namespace layertool
