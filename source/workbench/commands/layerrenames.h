#pragma once

#include "layers/layer.h"

#include <QStringList>

#include <vector>

namespace drawing {
class Drawing;
}

/// The name that a layer is to have.
struct LayerRename
{
    drawing::LayerId layer = drawing::LayerId::None;
    QString name;
};

/// Renames layers, whichever takes the name that another gives up, also in a circle. Returns a
/// sentence for each rename that is refused; such a layer keeps its name, and so do those that
/// wanted it. No layer is left under a name that it neither had nor was to have.
QStringList renameLayers(drawing::Drawing& drawing, const std::vector<LayerRename>& renames);
