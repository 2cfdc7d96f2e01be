#include "vndialogs.h"

#include "hostcodes.h"
#include "hostfrontend.h"
#include "hosttexts.h"
#include "settings.h"
#include "vnmessages.h"
#include "vnrequests.h"
#include "vnstrings.h"

#include <exception>

namespace vnsi {

ODRX_DEFINE_MEMBERS(VnUiDialogInvoker, OdRxObject, L"VnUiDialogInvoker")
ODRX_DEFINE_MEMBERS(VnUiDialogBase, OdRxObject, L"VnUiDialogBase")
ODRX_DEFINE_MEMBERS(VnUiModeDialogBase, VnUiDialogBase, L"VnUiModeDialogBase")
ODRX_DEFINE_MEMBERS(VnUiService, OdRxObject, L"VnUiService")

// Commands override it as it is. NOLINTNEXTLINE(performance-unnecessary-value-param)
void VnUiDialogInvoker::invoke(VnJsonPtr) {}

namespace {

void reportFailure(const OdString& dialogName, const char* cause)
{
    const QString text = host::Texts::tr("对话框“%1”出错: %2")
                             .arg(vnutOdStringToQString(dialogName), QString::fromUtf8(cause));
    vnuiMessageBox(
        vnutQStringToOdString(text), vnutQStringToOdString(kProductName), kVnIconWarning);
}

/// Runs a dialog and returns its result; 0 when it could not be shown.
int runDialog(const OdString& serviceName, const OdString& dialogName, const VnJsonPtr& tree,
    const OdRxObjectPtr& invoker, QWidget* parent)
{
    if (!vnedIsRunningInUI())
        return 0;
    try {
        return host::hostFrontEnd().showDialog(serviceName, dialogName, tree, invoker, parent);
    } catch (const std::exception& error) {
        reportFailure(dialogName, error.what());
    } catch (...) {
        reportFailure(dialogName, "?");
    }
    return 0;
}

} // namespace

VnJsonPtr vnuiShowModelDialogEx(const OdString& serviceName, const OdString& dialogName,
    const VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent)
{
    const int result = runDialog(serviceName, dialogName, tree, invoker, parent);
    VnJsonPtr answer = tree ? tree : ElementValue::createObject(1);
    answer->SetDataI("result", result);
    host::saveSettings();
    return answer;
}

VnJsonPtr vnuiShowModelDialog(
    const OdString& serviceName, const OdString& dialogName, const VnJsonPtr& tree)
{
    return vnuiShowModelDialogEx(serviceName, dialogName, tree, {}, nullptr);
}

} // namespace vnsi
