#pragma once

class QDialog;
class QDialogButtonBox;

namespace host {

/// Makes the buttons OK and Cancel, which have the object names "ok" and "cancel" and are connected
/// to the dialog.
QDialogButtonBox* makeOkCancelBox(QDialog& dialog);

} // namespace host
