#include "hostfrontend.h"

#include "helpwindow.h"
#include "hostdialogs.h"
#include "hostwindows.h"
#include "messagebox.h"
#include "taskdialog.h"

namespace host {

namespace {
HostFrontEnd* installed = nullptr;
}

HostFrontEnd::~HostFrontEnd() = default;

int HostFrontEnd::messageBox(const OdString& text, const OdString& caption, int style)
{
    return showMessageBox({caption, text, {}, style, 1, style});
}

int HostFrontEnd::messageBoxEx(const OdString& caption, const OdString& text,
    const vnsi::VnJsonPtr& options, int style, int code, int icon)
{
    return showMessageBox({caption, text, options, style, code, icon ? icon : style});
}

int HostFrontEnd::taskDialog(const TaskQuestion& question)
{
    TaskDialog window(question, currentWindow());
    window.exec();
    return window.answer();
}

int HostFrontEnd::showDialog(const OdString& service, const OdString& name,
    const vnsi::VnJsonPtr& tree, const OdRxObjectPtr& invoker, QWidget* parent)
{
    const vnsi::VnUiModeDialogBasePtr dialog = [&] {
        const CurrentWindowScope scope(parent);
        return makeDialog(service, name);
    }();
    if (dialog.isNull())
        return 0;
    dialog->setData(tree, invoker);
    return dialog->doModal();
}

void HostFrontEnd::help(int topic)
{
    HelpWindow::showFor(currentWindow(), topic);
}

HostFrontEnd& hostFrontEnd()
{
    static HostFrontEnd real;
    return installed ? *installed : real;
}

HostFrontEnd* setHostFrontEnd(HostFrontEnd* frontEnd)
{
    return std::exchange(installed, frontEnd);
}

} // namespace host
