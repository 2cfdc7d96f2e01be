#pragma once

#include <QString>

namespace bench {

/// Writes a drawing of short lines, all over a field and on so many layers in turn. Returns whether
/// it could be written.
bool writeLines(const QString& path, int lines, int layers);

} // namespace bench
