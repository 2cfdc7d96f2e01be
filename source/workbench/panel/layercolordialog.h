#pragma once

#include "layers/layer.h"

#include <QString>

#include <optional>

class QWidget;

namespace layercolordialog {

/// Asks for a layer's colour in the host's dialog, beginning with its present colour. Returns the
/// colour in the form that cells show; nothing when the user cancelled.
std::optional<QString> choose(const drawing::LayerProperties& shown, QWidget* parent);

} // namespace layercolordialog
