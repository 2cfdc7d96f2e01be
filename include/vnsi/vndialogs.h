#pragma once

#include "RxObject.h"
#include "vnjson.h"

class QWidget;

namespace vnsi {

/// Answers the requests of a dialog. The running command implements it.
class VNSI_EXPORT VnUiDialogInvoker : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnUiDialogInvoker)
public:
    /// Reads the request from `tree` and writes the answer into it before returning. This base
    /// implementation does nothing.
    virtual void invoke(VnJsonPtr tree);
};

/// A dialog as the host sees it.
class VNSI_EXPORT VnUiDialogBase : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnUiDialogBase)
public:
    /// Passes the input tree and the call-back object to the dialog, which fills its widgets.
    /// Either may be empty. Returns 1 when the dialog accepted them, otherwise 0.
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

/// A service that makes dialogs by name.
class VNSI_EXPORT VnUiService : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(VnUiService)
public:
    /// Makes a new dialog. Returns null for an unknown name and when the dialog cannot be built.
    virtual VnUiModeDialogBasePtr createDialog(const OdString& dialogName) = 0;
};

/// Shows dialog `dialogName` of service `serviceName` and returns when it is closed. The dialog
/// receives `tree` unchanged, even when it is empty. Returns `tree`, or a new object when it was
/// empty, with "result" written into it. The "result" is 0 when there is no such dialog.
VNSI_EXPORT VnJsonPtr vnuiShowModelDialogEx(const OdString& serviceName, const OdString& dialogName,
    const VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent);
/// Shows a dialog under the host's current window and without a call-back object.
VNSI_EXPORT VnJsonPtr vnuiShowModelDialog(
    const OdString& serviceName, const OdString& dialogName, const VnJsonPtr& tree);

/// The native handle of the window that new dialogs belong to; null when there is none.
VNSI_EXPORT void* vnuiCurTargetWindow();
/// The widget that a native handle belongs to; null for a null handle.
VNSI_EXPORT QWidget* qt_windowHandle_to_widget(void* handle);

} // namespace vnsi
