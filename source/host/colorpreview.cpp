#include "colorpreview.h"

#include <QPainter>

namespace host {

namespace {
constexpr int kWidth = 84;
constexpr int kHeight = 84;
constexpr int kInset = 10;
} // namespace

ColorPreview::ColorPreview(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setToolTip(tr("左上: 新颜色，右下: 原颜色"));
    setAccessibleName(tr("颜色预览"));
}

void ColorPreview::setBackground(const QColor& color)
{
    m_background = color;
    update();
}

void ColorPreview::setOld(const QColor& color)
{
    m_old = color;
    update();
}

void ColorPreview::setNew(const QColor& color)
{
    m_new = color;
    update();
}

QSize ColorPreview::sizeHint() const
{
    return {kWidth, kHeight};
}

void ColorPreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(m_background);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect area = rect().adjusted(kInset, kInset, -kInset, -kInset);
    const QSize square(area.width() * 2 / 3, area.height() * 2 / 3);
    QRect old(QPoint(), square);
    old.moveBottomRight(area.bottomRight());
    if (m_old.isValid())
        painter.fillRect(old, m_old);
    if (m_new.isValid())
        painter.fillRect(QRect(area.topLeft(), square), m_new);
}

} // namespace host
