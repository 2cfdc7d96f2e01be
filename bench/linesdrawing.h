#pragma once

#include <QString>

namespace bench {

/// Writes a drawing of short lines that are spread over an area and alternate between `layers`
/// layers. Returns false when it could not be written.
bool writeLines(const QString& path, int lines, int layers);

} // namespace bench
