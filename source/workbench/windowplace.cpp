#include "windowplace.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>

namespace windowplace {

namespace {

const char kGeometry[] = "window/geometry";
const char kLayout[] = "window/layout";
constexpr QSize kFirstSize(1280, 820);
constexpr QSize kFrame(16, 40); ///< About what window managers draw around a window.

} // namespace

void restore(QMainWindow& window)
{
    const QSettings settings;
    window.restoreState(settings.value(QLatin1String(kLayout)).toByteArray());
    // Qt itself sees to it that a window is not restored to where there is no screen any more.
    if (window.restoreGeometry(settings.value(QLatin1String(kGeometry)).toByteArray()))
        return;
    const QSize space = QGuiApplication::primaryScreen()->availableSize() - kFrame;
    window.resize(kFirstSize.boundedTo(space));
}

void keep(const QMainWindow& window)
{
    QSettings settings;
    settings.setValue(QLatin1String(kGeometry), window.saveGeometry());
    settings.setValue(QLatin1String(kLayout), window.saveState());
}

} // namespace windowplace
