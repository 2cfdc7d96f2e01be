#pragma once

#include "vnjson.h"

#include <QSet>
#include <QString>

class QBoxLayout;
class QDialog;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

/// What the dialogs that offer layers in a list have in common.
namespace vnsi::layerlist {

struct Buttons
{
    QPushButton* ok = nullptr;
    QPushButton* cancel = nullptr;
    QPushButton* help = nullptr;
};

/// The row of OK, Cancel and Help at a dialog's right, with OK as its default button.
QBoxLayout* makeButtonRow(QDialog& dialog, Buttons& buttons);
QListWidget* makeList(QDialog& dialog);
/// A line edit that takes the focus by click only, so that the list keeps the keyboard.
QLineEdit* makeNameEdit(QDialog& dialog);

/// One item for each record of `layers`, in order; the first one is made current.
void fill(QListWidget& list, const VnJsonPtr& layers);
void copyText(const QListWidgetItem* item, QLineEdit* edit);
QSet<QString> selectedNames(const QListWidget& list);

/// Writes the action `status` and the mark of a change into every record that `names` holds,
/// exactly as written.
void mark(const VnJsonPtr& layers, const QSet<QString>& names, int status);

} // namespace vnsi::layerlist
