#pragma once

#include "taskdialog.h"
#include "vndialogs.h"

#include <QString>

class QWidget;

namespace host {

/// Everything that the host shows to the user passes through this class, so that a program can
/// watch it or answer in place of the user. This implementation shows the real windows.
class VNSI_EXPORT HostFrontEnd
{
public:
    virtual ~HostFrontEnd();

    /// Does what `vnuiMessageBox` does.
    virtual int messageBox(const OdString& text, const OdString& caption, int style);
    /// Does what `vnuiMessageBoxEx` does, but returns the value of "ControlBtn".
    virtual int messageBoxEx(const OdString& caption, const OdString& text,
        const vnsi::VnJsonPtr& options, int style, int code, int icon);
    /// Does what `CVnUiTaskDialog::DoModal` does.
    virtual int taskDialog(const TaskQuestion& question);
    /// Makes and runs a dialog under `parent`, or under the current window when `parent` is null.
    /// Returns its result; 0 when there is no such dialog. Answer keys are written into `tree`,
    /// which may be empty.
    virtual int showDialog(const OdString& service, const OdString& name,
        const vnsi::VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent);
    /// Shows the help of the active dialog.
    virtual void help(int topic);
};

/// The front end that is in use.
VNSI_EXPORT HostFrontEnd& hostFrontEnd();
/// Installs another front end, which the caller continues to own; null installs the real one.
/// Returns the previous front end, or null when that was the real one.
VNSI_EXPORT HostFrontEnd* setHostFrontEnd(HostFrontEnd* frontEnd);

} // namespace host
