#include "hostwindows.h"

#include "vndialogs.h"
#include "vnrequests.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace host {

namespace {
QPointer<QWidget> mainWindow;
QPointer<QWidget> preferred;
} // namespace

void setMainWindow(QWidget* window)
{
    mainWindow = window;
}

QWidget* currentWindow()
{
    if (!vnsi::vnedIsRunningInUI())
        return nullptr;
    if (preferred)
        return preferred->window();
    if (QWidget* const modal = QApplication::activeModalWidget())
        return modal;
    QWidget* const active = QApplication::activeWindow();
    return active ? active : mainWindow.data();
}

CurrentWindowScope::CurrentWindowScope(QWidget* window) : m_previous(preferred)
{
    if (window)
        preferred = window;
}

CurrentWindowScope::~CurrentWindowScope()
{
    preferred = m_previous;
}

} // namespace host

namespace vnsi {

void* vnuiCurTargetWindow()
{
    const QWidget* const window = host::currentWindow();
    // Qt identifies a window by a number, the interface by a pointer.
    return window ? reinterpret_cast<void*>(window->winId()) // NOLINT(performance-no-int-to-ptr)
                  : nullptr;
}

QWidget* qt_windowHandle_to_widget(void* handle)
{
    return handle ? QWidget::find(reinterpret_cast<WId>(handle)) : nullptr;
}

} // namespace vnsi
