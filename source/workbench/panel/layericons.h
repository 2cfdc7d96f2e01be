#pragma once

#include "layers/layer.h"

#include <QIcon>

/// The pictures in the cells of layers; each is made once.
namespace layericons {

/// By its file name under ":/workbench/" without the ending; null for null.
QIcon icon(const char* name);
/// A square in the layer's colour. Colour 7 is half white, half black: what it is depends on the
/// background. The picture is the same when selected.
QIcon swatch(const drawing::LayerProperties& properties);

} // namespace layericons
