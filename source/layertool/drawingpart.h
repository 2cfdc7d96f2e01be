#pragma once

#include "file/error.h"

#include <QString>

#include <functional>

namespace drawing {
class Drawing;
struct Entity;
} // namespace drawing

namespace layertool {

/// A file name for a layer. Layer names of old files may be ".." or contain a slash.
QString safeFileName(const QString& layer);

/// Whether an entity is in model space or a layout. The contents of blocks appear where the blocks
/// are inserted.
bool isPlaced(const drawing::Drawing& drawing, const drawing::Entity& entity);

/// Reduces a drawing, in the open step, to the entities of model space and layouts on the wanted
/// layers and to the layers that are still needed. At least one such entity must be on a wanted
/// layer. An error does not undo anything; the caller rolls the step back.
drawing::Expected<void> keepOnly(
    drawing::Drawing& drawing, const std::function<bool(const QString& layer)>& isKept);

} // namespace layertool
