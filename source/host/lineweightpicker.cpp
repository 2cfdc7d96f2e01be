#include "lineweights.h"
#include "vnpickers.h"

#include <QPainter>

namespace vnsi {

namespace {

constexpr int kDefaultWeight = -3;
constexpr int kWeights[] = {-1, -2, kDefaultWeight, 0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53,
    60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
constexpr QSize kIconSize(40, 16);
constexpr int kHundredthsToAPixel = 18;

/// A line with the width of the weight, in the text colour so that it is visible on every
/// background.
QIcon weightIcon(int weight, const QColor& color)
{
    QPixmap pixmap(kIconSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const int thickness = qMax(1, weight / kHundredthsToAPixel);
    painter.fillRect(0, (kIconSize.height() - thickness) / 2, kIconSize.width(), thickness, color);
    painter.end();
    return QIcon(pixmap);
}

} // namespace

VnLineWidthComboBox::VnLineWidthComboBox(QWidget* parent) : QComboBox(parent)
{
    setIconSize(kIconSize);
    for (const int weight : kWeights)
        addItem(weightIcon(weight, palette().color(QPalette::Text)), host::lineweightText(weight),
            weight);
}

int VnLineWidthComboBox::GetCurrentLineWeight() const
{
    return currentIndex() < 0 ? kDefaultWeight : currentData().toInt();
}

} // namespace vnsi

QString host::lineweightText(int weight)
{
    switch (weight) {
    case -1:
        return vnsi::VnLineWidthComboBox::tr("随层");
    case -2:
        return vnsi::VnLineWidthComboBox::tr("随块");
    case vnsi::kDefaultWeight:
        return vnsi::VnLineWidthComboBox::tr("默认");
    default:
        return vnsi::VnLineWidthComboBox::tr("%1 mm").arg(weight / 100.0, 0, 'f', 2);
    }
}
