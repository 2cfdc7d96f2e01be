#include "layeracts.h"

#include "benchtexts.h"

#include <algorithm>
#include <set>

using drawing::Drawing;
using drawing::Layer;
using drawing::LayerId;
using drawing::LayerProperties;

namespace layeracts {

namespace {

QStringList overrideInViewport(
    Drawing& drawing, const Layers& layers, const LayerColumn& column, const QString& text)
{
    const LayerSnapshot now(&drawing);
    std::vector<drawing::LayerInViewport> shown;
    for (const LayerId id : layers) {
        const int at = now.find(id);
        if (at < 0)
            continue;
        shown.push_back({id, now.inViewport(at)});
        column.set(text, shown.back().shown);
    }
    const auto done = drawing.overrideInViewport(shown, column.property);
    if (!done)
        return {Texts::tr("视口中的图层特性没有更改：%1。").arg(done.error().text)};
    QStringList refusals;
    for (const LayerId id : *done)
        refusals += Texts::tr("图层“%1”：图形中没有线型“%2”。")
                        .arg(drawing.layer(id)->properties.name, text);
    return refusals;
}

} // namespace

QStringList change(Drawing& drawing, const Layers& layers, const Change& change)
{
    QStringList refusals;
    for (const LayerId id : layers) {
        const Layer* const layer = drawing.layer(id);
        if (!layer)
            continue;
        LayerProperties wanted = layer->properties;
        change(wanted);
        if (wanted.frozen && !layer->properties.frozen && id == drawing.currentLayer()) {
            refusals += Texts::tr("不能冻结当前图层“%1”。").arg(layer->properties.name);
            continue;
        }
        if (const auto done = drawing.setLayerProperties(id, wanted); !done)
            refusals += done.error().text;
    }
    return refusals;
}

QStringList setText(
    Drawing& drawing, const Layers& layers, const LayerColumn& column, const QString& text)
{
    LayerProperties value;
    const QString trimmed = text.trimmed();
    if (!column.set || !column.set(trimmed, value))
        return {Texts::tr("“%1”不是有效的%2。").arg(text, column.displayTitle())};
    switch (column.scope) {
    case LayerColumn::FrozenInViewport:
        return freezeInViewport(drawing, layers, value.frozen);
    case LayerColumn::OfViewport:
        return overrideInViewport(drawing, layers, column, trimmed);
    default:
        return change(
            drawing, layers, [&](LayerProperties& properties) { column.set(trimmed, properties); });
    }
}

QStringList freezeInViewport(Drawing& drawing, const Layers& layers, bool isFrozen)
{
    const std::vector<LayerId> before = drawing.frozenInViewport();
    std::set<LayerId> frozen(before.begin(), before.end());
    for (const LayerId id : layers) {
        if (isFrozen)
            frozen.insert(id);
        else
            frozen.erase(id);
    }
    if (const auto done = drawing.setFrozenInViewport({frozen.begin(), frozen.end()}); !done)
        return {Texts::tr("视口中的图层没有更改：%1。").arg(done.error().text)};
    return {};
}

LayerId add(Drawing& drawing, LayerId model, QStringList& refusals)
{
    LayerProperties properties;
    if (const Layer* const like = drawing.layer(model))
        properties = like->properties;
    properties.frozen = false;
    properties.description.clear();
    for (int number = 1; number == 1 || drawing.findLayer(properties.name); ++number)
        properties.name = Texts::tr("图层%1").arg(number);
    const auto added = drawing.addLayer(properties);
    if (added)
        return *added;
    refusals += added.error().text;
    return LayerId::None;
}

QString flagStepName(const LayerColumn& column, bool value)
{
    // Turning layers on and off has its own words, unlike other flags.
    if (column.key == QLatin1String("on"))
        return value ? Texts::tr("打开图层") : Texts::tr("关闭图层");
    const bool isOfViewport = column.scope == LayerColumn::FrozenInViewport;
    return (isOfViewport ? Texts::tr("在视口中%1图层") : Texts::tr("%1图层"))
        .arg(column.word(value));
}

QString stepName(const LayerColumn& column)
{
    return Texts::tr("更改图层%1").arg(column.displayTitle());
}

} // namespace layeracts
