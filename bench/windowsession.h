#pragma once

#include "mainwindow.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

class Canvas;
class QDialog;

namespace bench {

/// Measures the longest time for which the event loop of this thread did not serve a timer of 5 ms.
class Heartbeat : public QObject
{
public:
    Heartbeat();

    /// Starts a new measurement.
    void reset();
    /// The longest time in seconds.
    double longest();

private:
    void beat();

    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_longest = 0;
};

/// The main window with a drawing, and the actions of a user in it.
class Session
{
public:
    explicit Session(const QString& path);

    bool open();
    void pan();
    void zoom();
    /// Opens the layer walk, clicks some layers, and restores the former state.
    void walk();
    /// Changes 141,000 objects to another layer.
    void changeTo();
    void undo();

    /// The seconds from moving the view to the next picture.
    double panned();
    double zoomed(int notches);

    void showAll();
    void finishPicture();

    Canvas& canvas() const { return *window.canvas(); }

    MainWindow window;
    Heartbeat heart;

private:
    void mouse(QEvent::Type type, const QPoint& at, Qt::MouseButton button);
    void turnWheel(int notches);
    void run(const QString& command, const std::function<void(QDialog&)>& act);

    QString m_path;
};

} // namespace bench
