#include "layerlist.h"

#include "drawing.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject layerObject(const drawing::Layer& layer, bool current)
{
    const drawing::LayerProperties& properties = layer.properties;
    QJsonObject object{
        {QStringLiteral("name"), properties.name},
        {QStringLiteral("current"), current},
        {QStringLiteral("off"), properties.off},
        {QStringLiteral("frozen"), properties.frozen},
        {QStringLiteral("locked"), properties.locked},
        {QStringLiteral("plotted"), properties.plotted},
        {QStringLiteral("frozenInNewViewports"), properties.frozenInNewViewports},
        {QStringLiteral("color"), properties.colorIndex},
        {QStringLiteral("linetype"), properties.linetype},
        {QStringLiteral("lineweight"), properties.lineweight},
        {QStringLiteral("transparency"), properties.transparency},
        {QStringLiteral("plotStyle"), properties.plotStyle},
        {QStringLiteral("description"), properties.description},
        {QStringLiteral("dependsOnReference"), layer.dependsOnReference},
        {QStringLiteral("entities"), layer.entityCount},
    };
    if (properties.trueColor)
        object.insert(QStringLiteral("trueColor"),
            QStringLiteral("#%1").arg(*properties.trueColor, 6, 16, QLatin1Char('0')));
    return object;
}

} // namespace

QByteArray layerListJson(const drawing::Drawing& drawing)
{
    QJsonArray layers;
    for (const drawing::Layer& layer : drawing.layers())
        layers.append(layerObject(layer, layer.id == drawing.currentLayer()));
    const QJsonObject document{
        {QStringLiteral("file"), drawing.path()}, {QStringLiteral("layers"), layers}};
    return QJsonDocument(document).toJson();
}
