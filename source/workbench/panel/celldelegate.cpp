#include "celldelegate.h"

#include "layermodel.h"
#include "lineweights.h"

#include <QComboBox>
#include <QSpinBox>

namespace {

constexpr int kTransparencyStep = 10;

QStringList linetypes(const QAbstractItemModel* model)
{
    const drawing::Drawing* const drawing = static_cast<const LayerModel*>(model)->drawing();
    QStringList names = drawing ? drawing->linetypes() : QStringList();
    const QString plain = drawing::LayerProperties().linetype;
    if (!names.contains(plain, Qt::CaseInsensitive))
        names.prepend(plain);
    return names;
}

QStringList lineweights()
{
    QStringList texts;
    for (const int weight : drawing::kLineweights) {
        if (weight != -1 && weight != -2)
            texts += host::lineweightText(weight);
    }
    return texts;
}

} // namespace

QWidget* CellDelegate::createList(const QStringList& texts, QWidget* parent) const
{
    auto* const list = new QComboBox(parent);
    list->addItems(texts);
    auto* const self = const_cast<CellDelegate*>(this);
    connect(list, QOverload<int>::of(&QComboBox::activated), self, [self, list] {
        emit self->commitData(list);
        emit self->closeEditor(list);
    });
    return list;
}

QWidget* CellDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    switch (LayerColumns::at(index.column()).kind) {
    case LayerColumn::Linetype:
        return createList(linetypes(index.model()), parent);
    case LayerColumn::Lineweight:
        return createList(lineweights(), parent);
    case LayerColumn::Transparency: {
        auto* const number = new QSpinBox(parent);
        number->setRange(0, drawing::kMostTransparent);
        number->setSingleStep(kTransparencyStep);
        return number;
    }
    default:
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const list = qobject_cast<QComboBox*>(editor))
        list->setCurrentIndex(
            list->findText(index.data(Qt::EditRole).toString(), Qt::MatchFixedString));
    else if (auto* const number = qobject_cast<QSpinBox*>(editor))
        number->setValue(index.data(Qt::EditRole).toInt());
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void CellDelegate::setModelData(
    QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (const auto* const list = qobject_cast<QComboBox*>(editor))
        model->setData(index, list->currentText(), Qt::EditRole);
    else if (auto* const number = qobject_cast<QSpinBox*>(editor)) {
        number->interpretText();
        model->setData(index, number->cleanText(), Qt::EditRole);
    } else {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}
