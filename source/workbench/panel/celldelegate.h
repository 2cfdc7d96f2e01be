#pragma once

#include <QStyledItemDelegate>

/// The editors in the cells of the layer panel: a list when there is a choice, a number field for
/// the transparency, and a line edit otherwise. Colours have a dialog instead of an editor.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(
        QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    QWidget* createList(const QStringList& texts, QWidget* parent) const;
};
