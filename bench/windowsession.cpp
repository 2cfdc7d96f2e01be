#include "windowsession.h"

#include "canvas.h"
#include "drawing.h"
#include "stopwatch.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QWheelEvent>

#include <algorithm>
#include <numeric>

namespace bench {

namespace {

constexpr int kChanged = 141000; ///< The number of objects that are moved to another layer at once.
constexpr int kFrames = 20;

void processUntil(const std::function<bool()>& isDone)
{
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void processFor(int milliseconds)
{
    bool isOver = false;
    QTimer::singleShot(milliseconds, qApp, [&isOver] { isOver = true; });
    processUntil([&isOver] { return isOver; });
}

} // namespace

Heartbeat::Heartbeat()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.start(5);
    connect(&m_timer, &QTimer::timeout, this, [this] { beat(); });
    m_since.start();
}

void Heartbeat::reset()
{
    m_longest = 0;
    m_since.restart();
}

double Heartbeat::longest()
{
    beat();
    return static_cast<double>(m_longest) * 1e-9;
}

void Heartbeat::beat()
{
    m_longest = std::max(m_longest, m_since.nsecsElapsed());
    m_since.restart();
}

Session::Session(const QString& path) : m_path(path)
{
    window.resize(1600, 1000);
    window.show();
    QApplication::processEvents();
}

bool Session::open()
{
    bool isOpened = false;
    const auto connection = QObject::connect(
        &window, &MainWindow::fileOpened, &window, [&isOpened] { isOpened = true; });
    window.openFile(m_path);
    processUntil([&] { return isOpened && window.isPictureWhole(); });
    QObject::disconnect(connection);
    return isOpened;
}

void Session::pan()
{
    const QPoint center = canvas().rect().center();
    mouse(QEvent::MouseButtonPress, center, Qt::MiddleButton);
    for (int i = 1; i <= kFrames; ++i) {
        mouse(QEvent::MouseMove, center + QPoint(i * 7, i * 3), Qt::NoButton);
        processFor(20);
    }
    mouse(QEvent::MouseButtonRelease, center, Qt::MiddleButton);
    finishPicture();
}

void Session::zoom()
{
    for (int i = 0; i < kFrames; ++i) {
        turnWheel(i < kFrames / 2 ? 1 : -1);
        processFor(20);
    }
    finishPicture();
}

void Session::walk()
{
    run(QStringLiteral("LAYWALK"), [](QDialog& dialog) {
        auto* const list = dialog.findChild<QListWidget*>(QStringLiteral("layerList"));
        for (int i = 1; i <= 10; ++i) {
            const int row = i * list->count() / 11;
            list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
            emit list->itemClicked(list->item(row));
            processFor(50);
        }
        dialog.close();
    });
}

void Session::changeTo()
{
    const int count = static_cast<int>(window.drawing()->entities().size());
    std::vector<int> selection(static_cast<std::size_t>(std::min(kChanged, count)));
    std::iota(selection.begin(), selection.end(), 0);
    canvas().setSelection(selection);
    run(QStringLiteral("LAYMCH"), [](QDialog& dialog) {
        auto* const list = dialog.findChild<QListWidget*>(QStringLiteral("layerList"));
        list->setCurrentRow(list->count() / 2, QItemSelectionModel::ClearAndSelect);
        dialog.findChild<QPushButton*>(QStringLiteral("okButton"))->click();
    });
}

void Session::undo()
{
    window.findChild<QAction*>(QStringLiteral("UNDO"))->trigger();
    finishPicture();
}

double Session::panned()
{
    const QPoint center = canvas().rect().center();
    const QPoint to = center + QPoint(7, 3);
    mouse(QEvent::MouseButtonPress, center, Qt::MiddleButton);
    const double seconds = timed(Clock::Wall, [&] {
        mouse(QEvent::MouseMove, to, Qt::NoButton);
        finishPicture();
    });
    mouse(QEvent::MouseButtonRelease, to, Qt::MiddleButton);
    return seconds;
}

double Session::zoomed(int notches)
{
    return timed(Clock::Wall, [&] {
        turnWheel(notches);
        finishPicture();
    });
}

void Session::showAll()
{
    window.runCommand(QStringLiteral("ZOOM"));
    finishPicture();
}

void Session::finishPicture()
{
    canvas().update();
    processUntil([this] { return window.isPictureWhole(); });
}

void Session::mouse(QEvent::Type type, const QPoint& at, Qt::MouseButton button)
{
    QMouseEvent event(type, at, button, Qt::MiddleButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas(), &event);
}

void Session::turnWheel(int notches)
{
    const QPointF at = canvas().rect().center();
    QWheelEvent event(at, canvas().mapToGlobal(at.toPoint()), {}, {0, notches * 120}, Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&canvas(), &event);
}

void Session::run(const QString& command, const std::function<void(QDialog&)>& act)
{
    QTimer::singleShot(0, &window, [act] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog)
            act(*dialog);
    });
    window.runCommand(command);
    finishPicture();
}

} // namespace bench
