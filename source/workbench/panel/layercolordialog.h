#pragma once

#include "layers/layer.h"

#include <QString>

#include <optional>

class QWidget;

namespace layercolordialog {

/// Asks for a layer's colour in the host's dialog, which shows the one it has. The colour comes as
/// cells show it; none when the user gives up.
std::optional<QString> choose(const drawing::LayerProperties& shown, QWidget* parent);

} // namespace layercolordialog
