#pragma once

#include "fileworker.h"

#include <QObject>

class QWidget;

/// The open drawing, and how it is read from and written to its file. Questions and errors appear
/// in message boxes over the window.
class DrawingSession : public QObject
{
    Q_OBJECT

public:
    explicit DrawingSession(QWidget* window);

    drawing::Drawing* drawing() const { return m_drawing.get(); } ///< Null when none is open.
    FileWorker* worker() const { return m_worker.get(); }
    bool isBusy() const { return m_worker->isBusy(); }

    /// Opens a file in the background. Asks first when the present drawing has unsaved changes.
    /// When the file cannot be opened, the user is told and the present drawing stays.
    void open(const QString& path, const drawing::OpenOptions& options = {});
    /// Takes over a drawing that was already read.
    void adopt(std::shared_ptr<drawing::Drawing> drawing);
    /// Saves in the background. A failure is reported, and the drawing stays modified.
    void save(const QString& path);
    /// Returns true when nothing would be lost: the drawing is unmodified, was saved now, or the
    /// user discards its changes.
    bool confirmDiscard();
    /// Stops the work under way and asks about unsaved changes. Returns false when the user wants
    /// to continue.
    bool confirmClose();

signals:
    void opened();
    void saved(const QString& path);
    void failed(const QString& path); ///< The file could not be opened.
    void said(const QString& text);   ///< A line for the command line.

private:
    void waitForWorker();
    void report(const QString& title, const QString& path, const drawing::Error& error);

    QWidget* m_window;
    std::shared_ptr<drawing::Drawing> m_drawing;
    /// Declared after the drawing so that it is destroyed first.
    std::unique_ptr<FileWorker> m_worker;
    bool m_waiting = false;
};
