#pragma once

#include "layerrecord.h"

#include <QSet>
#include <QString>

class QDialog;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

/// What the dialogs that offer layers in a list have in common.
namespace vnsi::layerlist {

QListWidget* makeList(QDialog& dialog);
/// A line edit that takes the focus by click only, so that the list keeps the keyboard.
QLineEdit* makeNameEdit(QDialog& dialog);

/// One item for each record of `layers`, in order; the first one is made current.
void fill(QListWidget& list, const LayerRecordList& layers);
void copyText(const QListWidgetItem* item, QLineEdit* edit);
QSet<QString> selectedNames(const QListWidget& list);
/// Writes the action `status` and the mark of a change into every record that `names` holds,
/// exactly as written.
void mark(const LayerRecordList& layers, const QSet<QString>& names, LayerStatus status);

/// Shows why a name will not do; false, for the caller to hand on.
bool refuse(const QString& text, const QString& caption);
/// Asks with these buttons; whether the answer is `consent`.
bool confirm(const QString& caption, const QString& text, int buttons, int consent);

} // namespace vnsi::layerlist
