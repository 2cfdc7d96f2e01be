#pragma once

#include "taskdialog.h"
#include "vndialogs.h"

#include <QString>

class QWidget;

namespace host {

/// Everything the host shows to the user passes here, so that a program can watch it or answer in
/// the user's place. This one shows the real windows.
class VNSI_EXPORT HostFrontEnd
{
public:
    virtual ~HostFrontEnd();

    /// As `vnuiMessageBox`.
    virtual int messageBox(const OdString& text, const OdString& caption, int style);
    /// As `vnuiMessageBoxEx`; the value is its "ControlBtn".
    virtual int messageBoxEx(const OdString& caption, const OdString& text,
        const vnsi::VnJsonPtr& options, int style, int code, int icon);
    /// As `CVnUiTaskDialog::DoModal`.
    virtual int taskDialog(const TaskQuestion& question);
    /// Makes and runs a dialog under `parent` (the current window where it is null) and returns its
    /// result; 0 when there is no such dialog. Answer keys are written into `tree`, which may be
    /// empty.
    virtual int showDialog(const OdString& service, const OdString& name,
        const vnsi::VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent);
    /// Shows the help of the dialog in front.
    virtual void help(int topic);
};

/// The front end in use.
VNSI_EXPORT HostFrontEnd& hostFrontEnd();
/// Puts another front end in place, which the caller owns; null for the real one. Returns the one
/// that was in place, null for the real one.
VNSI_EXPORT HostFrontEnd* setHostFrontEnd(HostFrontEnd* frontEnd);

} // namespace host
