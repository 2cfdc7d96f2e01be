#pragma once

#include <QFont>
#include <QHash>
#include <QStyledItemDelegate>

namespace vnsi {

/// A fast delegate for lists of thousands of names in one font. All rows have the same height, and
/// a row's width is the sum of the advances of its characters. Laying out each name would take most
/// of the time for showing such a list.
class LayerNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    qreal textWidth(const QString& text) const;

    mutable QFont m_font;
    /// The space that a row needs besides its text: the width without it, the height with it.
    mutable QSize m_frame;
    mutable QHash<QChar, qreal> m_advances;
};

} // namespace vnsi
