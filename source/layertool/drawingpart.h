#pragma once

#include "file/error.h"

#include <QString>

#include <functional>

namespace drawing {
class Drawing;
struct Entity;
} // namespace drawing

namespace layertool {

/// A file name for a layer's: in old files a layer may be called "..", or hold a slash.
QString safeFileName(const QString& layer);

/// Whether an entity stands in model space or a layout: what blocks hold goes where they are
/// placed.
bool isPlaced(const drawing::Drawing& drawing, const drawing::Entity& entity);

/// Leaves, in the open step, of what is placed only what is on the layers wanted, and of the layers
/// those still needed. Something placed must be on one of these. An error takes back nothing: the
/// caller rolls back.
drawing::Expected<void> keepOnly(
    drawing::Drawing& drawing, const std::function<bool(const QString& layer)>& isKept);

} // namespace layertool
