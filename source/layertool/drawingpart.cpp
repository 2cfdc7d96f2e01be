#include "drawingpart.h"

#include "drawing.h"

namespace layertool {

namespace {

using drawing::Drawing;
using drawing::LayerId;

/// Leaves room for a suffix and for the additions of temporary files.
constexpr int kMostFileNameBytes = 200;

} // namespace

QString safeFileName(const QString& layer)
{
    QString name;
    for (const QChar c : layer) {
        const bool isUnsafe =
            c.unicode() < 32 || QStringLiteral("/\\:*?\"<>|").contains(c) || c.isSurrogate();
        name += isUnsafe ? QLatin1Char('_') : c;
    }
    while (name.startsWith(QLatin1Char('.')))
        name[0] = QLatin1Char('_');
    while (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')))
        name.chop(1);
    while (name.toUtf8().size() > kMostFileNameBytes)
        name.chop(1);
    return name.isEmpty() ? QStringLiteral("_") : name;
}

bool isPlaced(const Drawing& drawing, const drawing::Entity& entity)
{
    return !entity.removed && !entity.subEntity &&
           (entity.block < 0 || drawing.blocks()[static_cast<size_t>(entity.block)].layout);
}

drawing::Expected<void> keepOnly(
    Drawing& drawing, const std::function<bool(const QString& layer)>& isKept)
{
    // Entities to delete are collected on a layer of their own, because only layers can be deleted
    // with their contents.
    std::vector<int> going;
    LayerId kept = LayerId::None;
    for (size_t i = 0; i < drawing.entities().size(); ++i) {
        const drawing::Entity& entity = drawing.entities()[i];
        const drawing::Layer* const layer = drawing.layer(entity.layer);
        if (!layer || !isPlaced(drawing, entity))
            continue;
        if (isKept(layer->properties.name))
            kept = entity.layer;
        else
            going.push_back(static_cast<int>(i));
    }
    drawing::LayerProperties properties;
    properties.name = QStringLiteral("SPLIT$OUT");
    while (drawing.findLayer(properties.name))
        properties.name += QLatin1Char('$');
    const auto bin = drawing.addLayer(properties);
    if (!bin)
        return tl::make_unexpected(bin.error());
    if (const auto moved = drawing.moveEntities(going, *bin); !moved)
        return tl::make_unexpected(moved.error());
    if (auto done = drawing.deleteLayers({*bin}); !done)
        return done;
    if (!drawing.layer(kept)->properties.frozen && !drawing.layer(kept)->dependsOnReference) {
        if (auto done = drawing.setCurrentLayer(kept); !done)
            return done;
    }
    std::vector<LayerId> unused;
    for (const drawing::Layer& layer : drawing.layers()) {
        if (!layer.used() && layer.id != drawing.currentLayer() && !layer.dependsOnReference &&
            layer.properties.name != QLatin1String("0") &&
            !drawing::isNeverPlotted(layer.properties.name))
            unused.push_back(layer.id);
    }
    return unused.empty() ? drawing::Expected<void>() : drawing.deleteLayers(unused);
}

} // namespace layertool
