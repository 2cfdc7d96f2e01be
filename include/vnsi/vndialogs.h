#pragma once

#include "RxObject.h"
#include "vnjson.h"

class QWidget;

namespace vnsi {

/// Answers the requests of a dialog: the running command's side of the channel.
class VNSI_EXPORT VnUiDialogInvoker : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnUiDialogInvoker)
public:
    /// Reads the request from `tree` and writes the answer into it before returning. Does nothing
    /// here.
    virtual void invoke(VnJsonPtr tree);
};

/// A dialog as the host sees it.
class VNSI_EXPORT VnUiDialogBase : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnUiDialogBase)
public:
    /// Hands over the input tree and the call-back object (either may be empty) and lets the dialog
    /// fill its widgets. Returns 1 when the dialog took them, otherwise 0.
    virtual int setData(VnJsonPtr data, OdRxObjectPtr invoker) = 0;
};

/// A dialog that blocks its caller until it is closed.
class VNSI_EXPORT VnUiModeDialogBase : public VnUiDialogBase
{
    ODRX_DECLARE_MEMBERS(VnUiModeDialogBase)
public:
    /// Runs the dialog. Returns 1 for OK, 2 for cancel, or what the dialog wrote as its "result".
    virtual int doModal() = 0;
};

using VnUiModeDialogBasePtr = OdSmartPtr<VnUiModeDialogBase>;

/// Makes dialogs by name.
class VNSI_EXPORT VnUiService : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnUiService)
public:
    /// A new dialog; null for a name the service does not know and when the dialog cannot be built.
    virtual VnUiModeDialogBasePtr createDialog(const OdString& dialogName) = 0;
};

/// Shows dialog `dialogName` of service `serviceName` and returns when it is closed. The dialog is
/// given `tree` as it is, also empty. Gives back `tree` (a new object where that was empty) with
/// "result" written into it; 0 when there is no such dialog.
VNSI_EXPORT VnJsonPtr vnuiShowModelDialogEx(const OdString& serviceName, const OdString& dialogName,
    const VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent);
/// The same without a call-back object, under the host's current window.
VNSI_EXPORT VnJsonPtr vnuiShowModelDialog(
    const OdString& serviceName, const OdString& dialogName, const VnJsonPtr& tree);

/// Native handle of the window that dialogs belong to now; null when there is none.
VNSI_EXPORT void* vnuiCurTargetWindow();
/// The widget of a native handle; null for null.
VNSI_EXPORT QWidget* qt_windowHandle_to_widget(void* handle);

} // namespace vnsi
