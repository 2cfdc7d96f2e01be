#include "hostapi/hostcalls.h"

#include "hostapi/hosttree.h"
#include "hostcodes.h"
#include "vncolortext.h"
#include "vndialogs.h"
#include "vnmessages.h"
#include "vnservicedict.h"
#include "vnsettings.h"
#include "vnstrings.h"
#include "vntaskdialog.h"

#include <QLoggingCategory>

#include <exception>

namespace vnsi::hostapi {

namespace {

Q_LOGGING_CATEGORY(lcHost, "quenlith.layers.host")

/// Returns the result of `call`, or `fallback` when it throws. `name` identifies the call in the
/// log.
template <class Result, class Call>
Result guarded(const char* name, Result fallback, Call call)
{
    try {
        return call();
    } catch (const std::exception& error) {
        qCWarning(lcHost, "%s: %s", name, error.what());
    } catch (...) {
        qCWarning(lcHost, "%s failed", name);
    }
    return fallback;
}

OdString od(const QString& text)
{
    return vnutQStringToOdString(text);
}

/// The host's answer, or an object without keys when it is empty.
VnJsonPtr readable(const VnJsonPtr& answer)
{
    return answer ? answer : makeObject();
}

/// Removes the "result" of an earlier dialog from the tree, because a host may write nothing for a
/// dialog that is cancelled.
const VnJsonPtr& undecided(const VnJsonPtr& tree)
{
    removeKey(tree, "result");
    return tree;
}

} // namespace

VnJsonPtr showDialogEx(const OdString& serviceName, const OdString& dialogName,
    const VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent)
{
    return readable(guarded("vnuiShowModelDialogEx", VnJsonPtr(), [&] {
        return vnuiShowModelDialogEx(serviceName, dialogName, undecided(tree), invoker, parent);
    }));
}

VnJsonPtr showDialog(const OdString& serviceName, const OdString& dialogName, const VnJsonPtr& tree)
{
    return readable(guarded("vnuiShowModelDialog", VnJsonPtr(),
        [&] { return vnuiShowModelDialog(serviceName, dialogName, undecided(tree)); }));
}

QWidget* currentWindow()
{
    return guarded("vnuiCurTargetWindow", static_cast<QWidget*>(nullptr),
        [] { return qt_windowHandle_to_widget(vnuiCurTargetWindow()); });
}

int messageBox(const QString& text, const QString& caption, int style)
{
    return guarded(
        "vnuiMessageBox", 0, [&] { return vnuiMessageBox(od(text), od(caption), style); });
}

int messageBoxEx(const QString& caption, const QString& text, const VnJsonPtr& options, int style,
    int code, int icon, int fallback)
{
    const VnJsonPtr answer = guarded("vnuiMessageBoxEx", VnJsonPtr(), [&] {
        return vnuiMessageBoxEx(od(caption), od(text), readable(options), style, code, icon);
    });
    return answer ? answer->GetDataI("ControlBtn", fallback) : fallback;
}

int taskDialog(const QString& title, const QString& instruction,
    std::initializer_list<std::pair<int, QString>> commands)
{
    return guarded("CVnUiTaskDialog", static_cast<int>(kVnAnswerCancel), [&] {
        CVnUiTaskDialog dialog;
        dialog.SetWindowTitle(od(title));
        dialog.SetMainInstruction(od(instruction));
        for (const auto& [id, text] : commands)
            dialog.AddCommandControl(id, od(text));
        return dialog.DoModal();
    });
}

VnJsonPtr userConfig(const OdString& section)
{
    return readable(
        guarded("vn_user_config", VnJsonPtr(), [&] { return vn_user_config(section); }));
}

int systemVariable(const OdString& name)
{
    return guarded("getVar", 0, [&] { return static_cast<int>(getVar(name)); });
}

void showHelp()
{
    guarded("help", 0, [] {
        const OdRxObjectPtr service = vn_arbitDict_getservice(L"Core/EditPrimitiveServer");
        if (!service.isNull())
            hostextras::callHelp(service, 0);
        return 0;
    });
}

OdString colorText(const OdCmColor& color)
{
    return guarded("formatColor", OdString(), [&] {
        const OdRxObjectPtr manager = vn_arbitDict_getservice(L"Core/DocMgr");
        const OdArray<ODCOLORREF> table =
            manager.isNull() ? OdArray<ODCOLORREF>() : hostextras::currentColorTable(manager);
        return formatColor(color, table, OdDbObjectId());
    });
}

OdInt64 numberOf(const OdDbObjectId& id)
{
    return hostextras::numberOf(id);
}

bool matchesWildcard(const OdString& text, const OdString& pattern)
{
    return guarded("vnsiutWcMatchEx", false, [&] { return vnsiutWcMatchEx(text, pattern, true); });
}

} // namespace vnsi::hostapi
