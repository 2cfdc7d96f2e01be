#pragma once

#include "layers/layer.h"

#include <QIcon>

/// The icons in the cells of layers. Each is made once.
namespace layericons {

/// The icon with this file name under ":/workbench/", without extension; a null icon for null.
QIcon icon(const char* name);
/// A square in the layer's colour. Colour 7 is half white and half black because it depends on the
/// background. The icon looks the same when selected.
QIcon swatch(const drawing::LayerProperties& properties);

} // namespace layericons
