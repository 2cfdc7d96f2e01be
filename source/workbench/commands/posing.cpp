#include "posing.h"
#include "hostextras.h"

#include "commandinvoker.h"
#include "hostdialogs.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

namespace posing {

void showDialog(const OdString& service, const OdString& dialog, const vnsi::VnJsonPtr& tree,
    const LayerCommand::Camera& camera, const QString& name,
    const std::function<void(QWidget& window)>& more,
    const std::function<void(const vnsi::VnJsonPtr& tree)>& answer)
{
    const host::WatchedDialog made(service, dialog);
    if (!made || !made.window())
        return;
    made->setData(tree, CommandInvoker::make([answer](const vnsi::VnJsonPtr& asked) {
        if (answer)
            answer(asked);
    }));
    QWidget& window = *made.window();
    window.show();
    QCoreApplication::processEvents();
    camera(name, window);
    if (more)
        more(window);
    window.hide();
}

void showNested(QWidget& window, const char* method, int row, int column,
    const LayerCommand::Camera& camera, const QString& name)
{
    // Captured by value because the timer outlives this call when no dialog is opened.
    QTimer::singleShot(0, &window, [camera, name] {
        auto* nested = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!nested)
            return;
        QCoreApplication::processEvents();
        camera(name, *nested);
        nested->reject();
    });
    QMetaObject::invokeMethod(&window, method, Q_ARG(int, row), Q_ARG(int, column));
}

int FileChooser::showDialog(
    const OdString&, const OdString&, const vnsi::VnJsonPtr& tree, const OdRxObjectPtr&, QWidget*)
{
    const vnsi::VnJsonPtr paths = hostextras::createArray(1);
    hostextras::appendText(paths, L"standard.dxf");
    tree->SetDataJ("filePaths", paths);
    return 1;
}

} // namespace posing
