#include "layerlistparts.h"

#include "hostapi/hostcalls.h"
#include "hostcodes.h"
#include "layernamedelegate.h"
#include "vnstrings.h"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>

namespace vnsi::layerlist {

QListWidget* makeList(QDialog& dialog)
{
    auto* list = new QListWidget(&dialog);
    list->setItemDelegate(new LayerNameDelegate(list));
    list->setObjectName(QStringLiteral("layerList"));
    return list;
}

QLineEdit* makeNameEdit(QDialog& dialog)
{
    auto* edit = new QLineEdit(&dialog);
    edit->setObjectName(QStringLiteral("layerNameEdit"));
    edit->setFocusPolicy(Qt::ClickFocus);
    return edit;
}

void fill(QListWidget& list, const LayerRecordList& layers)
{
    list.clear();
    QStringList names;
    names.reserve(layers.count());
    for (const LayerRecord& record : layers)
        names.append(vnutOdStringToQString(record.name()));
    list.addItems(names);
    list.setCurrentRow(0);
}

void copyText(const QListWidgetItem* item, QLineEdit* edit)
{
    if (!item || !edit)
        return;
    edit->clear();
    edit->setText(item->text());
}

QSet<QString> selectedNames(const QListWidget& list)
{
    QSet<QString> names;
    // With one column the indexes correspond to the rows, while asking for the rows would compare
    // every range with every row.
    const QModelIndexList rows = list.selectionModel()->selectedIndexes();
    for (const QModelIndex& row : rows)
        names.insert(row.data().toString());
    return names;
}

void mark(const LayerRecordList& layers, const QSet<QString>& names, LayerStatus status)
{
    for (LayerRecord record : layers) {
        if (!names.contains(vnutOdStringToQString(record.name())))
            continue;
        record.setStatus(status);
        record.markModifiedByAction();
    }
}

bool refuse(const QString& text, const QString& caption)
{
    hostapi::messageBox(text, caption, kVnOk);
    return false;
}

bool confirm(const QString& caption, const QString& text, int buttons, int consent)
{
    return hostapi::messageBoxEx(caption, text, {}, buttons, 1, kVnIconQuestion) == consent;
}

} // namespace vnsi::layerlist
