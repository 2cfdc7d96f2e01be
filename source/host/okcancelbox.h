#pragma once

class QDialog;
class QDialogButtonBox;

namespace host {

/// "确定" and "取消", connected to the dialog, named "ok" and "cancel".
QDialogButtonBox* makeOkCancelBox(QDialog& dialog);

} // namespace host
