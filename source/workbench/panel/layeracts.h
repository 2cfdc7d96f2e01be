#pragma once

#include "layercolumns.h"

#include <QStringList>

#include <functional>
#include <vector>

/// Actions on many layers at once, as edits within an open step. Each function returns sentences
/// about what was refused; everything else is done.
namespace layeracts {

using Layers = std::vector<drawing::LayerId>;
using Change = std::function<void(drawing::LayerProperties& properties)>;

/// Applies a change to each of the layers, but does not freeze the current layer.
QStringList change(drawing::Drawing& drawing, const Layers& layers, const Change& change);
/// Sets the cells of a column to a text for these layers. Refuses an invalid text and then changes
/// nothing.
QStringList setText(drawing::Drawing& drawing, const Layers& layers, const LayerColumn& column,
    const QString& text);
/// Freezes or thaws the layers in the current viewport.
QStringList freezeInViewport(drawing::Drawing& drawing, const Layers& layers, bool isFrozen);
/// Adds a layer with the properties of `model` under a similar, unused name; `None` when refused.
drawing::LayerId add(drawing::Drawing& drawing, drawing::LayerId model, QStringList& refusals);

/// The name of the action of setting a flag in this column, for undo steps and menus.
QString flagStepName(const LayerColumn& column, bool value);
QString stepName(const LayerColumn& column);

} // namespace layeracts
