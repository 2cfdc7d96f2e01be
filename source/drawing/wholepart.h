#pragma once

#include "entities/drawingindexer.h"

#include <QByteArray>

namespace drawing {

class DrawingFile;

/// Whether a file that cannot be indexed can be opened as far as it is whole: it ends too early, or
/// rubbish begins.
bool hasWholePart(const IndexFault& fault);
/// A file of what is whole, up to the last entity or record that is, with all closed behind it.
QByteArray wholePart(const DrawingFile& file, const IndexFault& fault, const FileIndex& index,
    const EntityIndex& entities);

} // namespace drawing
