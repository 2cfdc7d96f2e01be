#pragma once

#include "file/error.h"
#include "layerstate.h"

namespace drawing {

class TextCodec;

/// What a file of layer states holds.
struct LayerStateFile
{
    std::vector<LayerState> states;
    QStringList notices; ///< What of the file could not be used, a sentence each.
};

/// Whether the file begins as files of layer states do, whatever its name.
bool isLayerStateFile(const QString& path);

/// Reads a file of layer states (*.las). Text that is no UTF-8 is taken to be in the code page of
/// `fallback`, or in GBK where that fits better; a notice says in which. What cannot be used
/// (groups, bits and values nobody knows, what follows a cut) is left out with a notice; what is no
/// such file is refused. A file that is not there gives no states.
Expected<LayerStateFile> readLayerStateFile(const QString& path, const TextCodec& fallback);

/// Replaces the file only when all is written.
Expected<void> writeLayerStateFile(const QString& path, const std::vector<LayerState>& states);

} // namespace drawing
