#pragma once

#include "entities/drawingindexer.h"

#include <QByteArray>

namespace drawing {

class DrawingFile;

/// Whether the intact part of a file that cannot be indexed can be opened: the file ends too early,
/// or garbage begins somewhere.
bool hasWholePart(const IndexFault& fault);
/// Makes a file of the intact part, up to the last complete entity or record, and closes everything
/// that was open there.
QByteArray wholePart(const DrawingFile& file, const IndexFault& fault, const FileIndex& index,
    const EntityIndex& entities);

} // namespace drawing
