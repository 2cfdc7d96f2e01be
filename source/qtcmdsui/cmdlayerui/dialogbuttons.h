#pragma once

class QBoxLayout;
class QDialog;
class QPushButton;
class QSize;

namespace vnsi {

/// The buttons at the end of a dialog.
struct OkCancelHelp
{
    QPushButton* ok = nullptr;
    QPushButton* cancel = nullptr;
    QPushButton* help = nullptr;
};

/// Makes the row with OK, Cancel and Help at the right edge of a dialog. OK is the default button.
QBoxLayout* makeButtonRow(QDialog& dialog, OkCancelHelp& buttons);

/// A button's agreed size, or more where the user's font would be cut.
QSize atLeastItsText(const QSize& agreed, const QPushButton& button);

} // namespace vnsi
