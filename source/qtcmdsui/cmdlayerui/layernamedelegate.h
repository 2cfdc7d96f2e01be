#pragma once

#include <QFont>
#include <QHash>
#include <QStyledItemDelegate>

namespace vnsi {

/// For lists of thousands of names in one font: rows are equally high, and as wide as the advances
/// of their characters add up to. Laying out each name is most of what showing such a list costs.
class LayerNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    qreal textWidth(const QString& text) const;

    mutable QFont m_font;
    mutable QSize m_frame; ///< What a row needs beside its text: width; height with the text.
    mutable QHash<QChar, qreal> m_advances;
};

} // namespace vnsi
