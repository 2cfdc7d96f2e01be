#pragma once

#include <QString>

namespace bench {

/// Writes a drawing of at least `megabytes` MB (of 1,000,000 bytes) to `path`: layers, blocks and
/// entities of the common kinds, byte for byte the same each time. Returns whether it could be
/// written.
bool writeDrawing(const QString& path, int megabytes);
/// The same of at least `kilobytes` of 1,000 bytes; its layers and blocks alone take 70.
bool writeSmallDrawing(const QString& path, int kilobytes);

} // namespace bench
