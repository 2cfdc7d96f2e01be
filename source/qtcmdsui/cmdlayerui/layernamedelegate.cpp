#include "layernamedelegate.h"

#include <QtMath>

namespace vnsi {

namespace {

/// Room for letters that kerning draws wider apart than their advances.
constexpr int kSlack = 2;

} // namespace

qreal LayerNameDelegate::textWidth(const QString& text) const
{
    qreal width = 0;
    for (const QChar character : text) {
        auto advance = m_advances.constFind(character);
        if (advance == m_advances.constEnd())
            advance =
                m_advances.insert(character, QFontMetricsF(m_font).horizontalAdvance(character));
        width += *advance;
    }
    return width;
}

QSize LayerNameDelegate::sizeHint(
    const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const bool isFirst = !m_frame.isValid() || m_font != option.font;
    if (isFirst) {
        m_font = option.font;
        m_advances.clear();
    }
    const QString text = index.data(Qt::DisplayRole).toString();
    const int width = qCeil(textWidth(text));
    if (isFirst) {
        const QSize whole = QStyledItemDelegate::sizeHint(option, index);
        m_frame = QSize(qMax(0, whole.width() - width) + kSlack, whole.height());
    }
    return {m_frame.width() + width, m_frame.height()};
}

} // namespace vnsi
