#pragma once

#include "drawing.h"

/// Runs `act` in a step of its own and returns its result.
template <class Act>
auto inStep(drawing::Drawing& drawing, Act act)
{
    drawing.beginStep(QStringLiteral("step"));
    auto result = act();
    drawing.commitStep();
    return result;
}

/// Runs `change` on a layer's properties in a step of its own. Returns the text of a refusal, or an
/// empty text.
template <class Change>
QString edit(drawing::Drawing& drawing, const QString& layer, Change change)
{
    const drawing::Layer* const found = drawing.findLayer(layer);
    drawing::LayerProperties properties = found->properties;
    change(properties);
    const auto result =
        inStep(drawing, [&] { return drawing.setLayerProperties(found->id, properties); });
    return result ? QString() : result.error().text;
}

/// The name of the current layer.
inline QString currentName(const drawing::Drawing& drawing)
{
    return drawing.layer(drawing.currentLayer())->properties.name;
}

/// The names of all layers in their order.
inline QStringList layerNames(const drawing::Drawing& drawing)
{
    QStringList names;
    for (const drawing::Layer& layer : drawing.layers())
        names += layer.properties.name;
    return names;
}
