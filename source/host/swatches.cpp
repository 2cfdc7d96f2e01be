#include "swatches.h"

#include <QPainter>
#include <QPixmap>

namespace host {

namespace {
constexpr int kSide = 16;
}

QColor indexColor(int index)
{
    const ODCOLORREF packed = OdCmEntityColor::lookUpRGB(index);
    return {static_cast<int>(packed & 0xFF), static_cast<int>(packed >> 8 & 0xFF),
        static_cast<int>(packed >> 16 & 0xFF)};
}

QColor toQColor(const OdCmEntityColor& color)
{
    return {color.red(), color.green(), color.blue()};
}

QIcon swatchIcon(const QColor& color)
{
    QPixmap pixmap(kSide, kSide);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(Qt::gray);
    painter.drawRect(0, 0, kSide - 1, kSide - 1);
    painter.end();
    return QIcon(pixmap);
}

} // namespace host
