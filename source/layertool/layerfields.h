#pragma once

#include "layers/layer.h"
#include "verb.h"

namespace layertool {

/// A layer's properties as texts: what `list` writes and `set` reads. One row a property.
struct LayerField
{
    const char* id;   ///< The English word of machine formats.
    const char* text; ///< The heading people see.
    QVariant (*get)(const drawing::LayerProperties& properties);
    /// Takes a cell's text. False when it makes no sense for this property.
    bool (*set)(drawing::LayerProperties& properties, const QString& text);
};

/// "name" first.
const std::vector<LayerField>& layerFields();
/// The columns of what `list` tells of a layer's contents besides.
std::vector<Column> contentColumns();
/// The columns of these fields.
std::vector<Column> layerColumns();

} // namespace layertool
