#pragma once

#include "fileworker.h"

#include <QObject>

class QWidget;

/// The drawing that is open, and how it comes from its file and goes back there. Asks and reports
/// in message boxes over the window.
class DrawingSession : public QObject
{
    Q_OBJECT

public:
    explicit DrawingSession(QWidget* window);

    drawing::Drawing* drawing() const { return m_drawing.get(); } ///< Null: none is open.
    FileWorker* worker() const { return m_worker.get(); }
    bool isBusy() const { return m_worker->isBusy(); }

    /// Opens in the background; asks first when the present drawing has unsaved changes. A file
    /// that cannot be opened is reported, and the present drawing stays.
    void open(const QString& path, const drawing::OpenOptions& options = {});
    /// Takes over a drawing that was read already.
    void adopt(std::shared_ptr<drawing::Drawing> drawing);
    /// Saves in the background; a failure is reported and leaves the drawing modified.
    void save(const QString& path);
    /// True when there is nothing to lose: unmodified, saved now, or given up by the user.
    bool confirmDiscard();
    /// Stops what is under way and settles unsaved changes; false when the user wants to go on.
    bool confirmClose();

signals:
    void opened();
    void saved(const QString& path);
    void failed(const QString& path); ///< The file could not be opened.
    void said(const QString& text);   ///< A line for the command line's echo.

private:
    void waitForWorker();
    void report(const QString& title, const QString& path, const drawing::Error& error);

    QWidget* m_window;
    std::shared_ptr<drawing::Drawing> m_drawing;
    std::unique_ptr<FileWorker> m_worker; ///< Behind the drawing: it ends first.
    bool m_waiting = false;
};
