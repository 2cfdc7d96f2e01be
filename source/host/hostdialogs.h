#pragma once

#include "vndialogs.h"

#include <QDialog>
#include <QPointer>

namespace host {

/// Makes a dialog of a registered service; null when there is no such service or dialog.
VNSI_EXPORT vnsi::VnUiModeDialogBasePtr makeDialog(const OdString& service, const OdString& name);

/// A dialog together with its window, for programs that inspect windows without running them. A
/// dialog object does not give access to its window, so the window is recognised by its object name
/// while the dialog is being made.
class VNSI_EXPORT WatchedDialog
{
public:
    WatchedDialog() = default;
    /// Makes the dialog; `window` is null when there is no such service or dialog.
    WatchedDialog(const OdString& service, const OdString& name);

    bool isNull() const { return m_dialog.isNull(); }
    explicit operator bool() const { return !isNull(); }
    vnsi::VnUiModeDialogBase* operator->() const { return m_dialog.get(); }
    /// Null when the window has been deleted.
    QDialog* window() const { return m_window; }

private:
    vnsi::VnUiModeDialogBasePtr m_dialog;
    QPointer<QDialog> m_window;
};

} // namespace host
