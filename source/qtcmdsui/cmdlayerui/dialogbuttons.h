#pragma once

class QBoxLayout;
class QDialog;
class QPushButton;

namespace vnsi {

/// The buttons that dialogs end with.
struct OkCancelHelp
{
    QPushButton* ok = nullptr;
    QPushButton* cancel = nullptr;
    QPushButton* help = nullptr;
};

/// The row of OK, Cancel and Help at a dialog's right, with OK as its default button.
QBoxLayout* makeButtonRow(QDialog& dialog, OkCancelHelp& buttons);

} // namespace vnsi
