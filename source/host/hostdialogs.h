#pragma once

#include "vndialogs.h"

#include <QDialog>
#include <QPointer>

namespace host {

/// A dialog of a service of the dictionary; null where there is no such service or dialog.
VNSI_EXPORT vnsi::VnUiModeDialogBasePtr makeDialog(const OdString& service, const OdString& name);

/// A dialog together with its window, for programs that look into windows without running them.
/// Dialogs do not tell their window: it is the one that comes up under the dialog's name while the
/// dialog is made.
class VNSI_EXPORT WatchedDialog
{
public:
    WatchedDialog() = default;
    /// Makes the dialog; null where there is no such service or dialog.
    WatchedDialog(const OdString& service, const OdString& name);

    bool isNull() const { return m_dialog.isNull(); }
    explicit operator bool() const { return !isNull(); }
    vnsi::VnUiModeDialogBase* operator->() const { return m_dialog.get(); }
    /// Null where the window is gone.
    QDialog* window() const { return m_window; }

private:
    vnsi::VnUiModeDialogBasePtr m_dialog;
    QPointer<QDialog> m_window;
};

} // namespace host
