#pragma once

#include <QObject>

#include <functional>

class CommandLine;
class QMainWindow;

/// Takes what is typed anywhere in a window to its command line. Fields keep what is typed into
/// them, and lists and buttons the space bar and ENTER, which they have a use for themselves.
class TypedKeys : public QObject
{
public:
    /// While `isBusy` says so the keys stay where they are.
    TypedKeys(QMainWindow& window, CommandLine& line, std::function<bool()> isBusy);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isForLine(const QWidget& focus, int key) const;

    QMainWindow& m_window;
    CommandLine& m_line;
    std::function<bool()> m_isBusy;
};
