#include "layericons.h"

#include "layers/colorindex.h"
#include "swatches.h"

#include <QCache>
#include <QHash>
#include <QPainter>
#include <QPixmap>

namespace layericons {

namespace {

constexpr int kSide = 16;
constexpr int kMostSwatches = 2000; // A drawing may have a different true colour for every layer.
/// True colours have no alpha, so no true colour equals this key.
constexpr quint32 kForegroundKey = 0xff000000;

QIcon framed(const QColor& color, bool isForeground)
{
    QPixmap pixmap(kSide, kSide);
    pixmap.fill(isForeground ? Qt::white : color);
    QPainter painter(&pixmap);
    if (isForeground)
        painter.fillRect(kSide / 2, 0, kSide / 2, kSide, Qt::black);
    painter.setPen(Qt::gray);
    painter.drawRect(0, 0, kSide - 1, kSide - 1);
    painter.end();
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

} // namespace

QIcon icon(const char* name)
{
    static QHash<QLatin1String, QIcon> icons;
    if (!name)
        return {};
    QIcon& icon = icons[QLatin1String(name)];
    if (icon.isNull()) {
        const QString file = QStringLiteral(":/workbench/%1.bmp").arg(QLatin1String(name));
        icon.addFile(file);
        icon.addFile(file, {}, QIcon::Selected);
    }
    return icon;
}

QIcon swatch(const drawing::LayerProperties& properties)
{
    static QCache<quint32, QIcon> swatches(kMostSwatches);
    const bool isForeground =
        !properties.trueColor && properties.colorIndex == drawing::kColorForeground;
    const QColor color = properties.trueColor ? QColor(QRgb(*properties.trueColor))
                                              : host::indexColor(properties.colorIndex);
    const quint32 key = isForeground ? kForegroundKey : color.rgb() & 0xffffff;
    if (const QIcon* known = swatches.object(key))
        return *known;
    QIcon made = framed(color, isForeground);
    swatches.insert(key, new QIcon(made));
    return made;
}

} // namespace layericons
