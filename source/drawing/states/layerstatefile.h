#pragma once

#include "file/error.h"
#include "layerstate.h"

namespace drawing {

class TextCodec;

/// The contents of a layer state file.
struct LayerStateFile
{
    std::vector<LayerState> states;
    QStringList notices; ///< One sentence for each thing in the file that could not be used.
};

/// Whether the file begins like a layer state file, whatever its name.
bool isLayerStateFile(const QString& path);

/// Reads a layer state file (*.las). Text that is not UTF-8 is decoded with `fallback`, or as GBK
/// when that fits better; a notice names the encoding. Unusable contents (unknown groups, bits and
/// values, anything after a truncation) are left out with a notice. Refuses a file that is not a
/// layer state file. A missing file gives no states.
Expected<LayerStateFile> readLayerStateFile(const QString& path, const TextCodec& fallback);

/// Writes a layer state file. An existing file is replaced only when everything has been written.
Expected<void> writeLayerStateFile(const QString& path, const std::vector<LayerState>& states);

} // namespace drawing
