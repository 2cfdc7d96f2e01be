#pragma once

#include "layers/layer.h"
#include "verb.h"

namespace layertool {

/// A layer property as text: `list` writes it and `set` reads it.
struct LayerField
{
    const char* id;   ///< The English word in machine-readable formats.
    const char* text; ///< The heading for people.
    QVariant (*get)(const drawing::LayerProperties& properties);
    /// Sets the property from a cell's text. Returns false when the text is invalid.
    bool (*set)(drawing::LayerProperties& properties, const QString& text);
};

/// All fields; "name" is the first.
const std::vector<LayerField>& layerFields();
/// The additional columns in which `list` describes a layer's contents.
std::vector<Column> contentColumns();
/// The columns for `layerFields`.
std::vector<Column> layerColumns();

} // namespace layertool
