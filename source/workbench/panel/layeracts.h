#pragma once

#include "layercolumns.h"

#include <QStringList>

#include <functional>
#include <vector>

/// What people do to many layers at once, as edits of a drawing with an open step. Each returns a
/// sentence for what was refused; the rest is done.
namespace layeracts {

using Layers = std::vector<drawing::LayerId>;
using Change = std::function<void(drawing::LayerProperties& properties)>;

/// Applies a change to each of the layers. The current layer is not frozen.
QStringList change(drawing::Drawing& drawing, const Layers& layers, const Change& change);
/// Gives the layers' cells in a column a text. Refuses, and changes nothing, a text that is no
/// value there.
QStringList setText(drawing::Drawing& drawing, const Layers& layers, const LayerColumn& column,
    const QString& text);
/// Freezes or thaws the layers in the current viewport.
QStringList freezeInViewport(drawing::Drawing& drawing, const Layers& layers, bool isFrozen);
/// Adds a layer that looks like another one, under a free name like it; `None` when refused.
drawing::LayerId add(drawing::Drawing& drawing, drawing::LayerId model, QStringList& refusals);

/// What setting a flag of these columns is called, as an undo step and in menus.
QString flagStepName(const LayerColumn& column, bool value);
QString stepName(const LayerColumn& column);

} // namespace layeracts
