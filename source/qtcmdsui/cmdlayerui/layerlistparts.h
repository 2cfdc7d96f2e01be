#pragma once

#include "layerrecord.h"

#include <QSet>
#include <QString>

class QDialog;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

/// Functions that the dialogs with a list of layers share.
namespace vnsi::layerlist {

QListWidget* makeList(QDialog& dialog);
/// Makes a line edit that only gets the focus by a click, so that the list keeps the keyboard.
QLineEdit* makeNameEdit(QDialog& dialog);

/// Adds one item for each record of `layers`, in order, and makes the first one current.
void fill(QListWidget& list, const LayerRecordList& layers);
void copyText(const QListWidgetItem* item, QLineEdit* edit);
QSet<QString> selectedNames(const QListWidget& list);
/// Sets the status `status` and marks the record as changed for every record whose exact name is in
/// `names`.
void mark(const LayerRecordList& layers, const QSet<QString>& names, LayerStatus status);

/// Shows why a name is not acceptable. Always returns false, which callers can return in turn.
bool refuse(const QString& text, const QString& caption);
/// Asks a question with these buttons and returns whether the answer is `consent`.
bool confirm(const QString& caption, const QString& text, int buttons, int consent);

} // namespace vnsi::layerlist
