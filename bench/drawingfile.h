#pragma once

#include <QString>

namespace bench {

/// Writes a drawing of at least `megabytes` MB (1,000,000 bytes) to `path`. It contains layers,
/// blocks and entities of the common kinds and is the same every time, byte for byte. Returns false
/// when it could not be written.
bool writeDrawing(const QString& path, int megabytes);
/// Writes a drawing of at least `kilobytes` kB (1,000 bytes) in the same way. Its layers and blocks
/// alone take 70 kB.
bool writeSmallDrawing(const QString& path, int kilobytes);

} // namespace bench
