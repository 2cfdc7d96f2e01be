#include "typedkeys.h"

#include "commandline.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QTextEdit>

namespace {

template <class... Classes>
bool isOneOf(const QWidget& widget)
{
    return (qobject_cast<const Classes*>(&widget) || ...);
}

} // namespace

TypedKeys::TypedKeys(QMainWindow& window, CommandLine& line, std::function<bool()> isBusy)
    : QObject(&window),
      m_window(window),
      m_line(line),
      m_isBusy(std::move(isBusy))
{
    qApp->installEventFilter(this);
}

bool TypedKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const QWidget& receiver = *static_cast<QWidget*>(watched);
    // What the focus has no use for passes through its parents, too, but is asked about once. The
    // program has no focus while a dialog that the key has opened goes; the window has.
    const QWidget* const focus = m_window.focusWidget();
    if (receiver.window() != &m_window || (focus && focus != &receiver) || m_isBusy())
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    return isForLine(receiver, key.key()) && m_line.takeKey(key);
}

bool TypedKeys::isForLine(const QWidget& focus, int key) const
{
    if (isOneOf<QLineEdit, QTextEdit, QComboBox, QAbstractSpinBox, QMenuBar>(focus))
        return false;
    const bool isSpaceOrEnter =
        key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    return !isSpaceOrEnter || &focus == &m_window || &focus == m_window.centralWidget();
}
