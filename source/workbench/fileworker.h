#pragma once

#include "drawing.h"

#include <QObject>

#include <memory>

class QThread;

/// Opens and saves drawings on a separate thread, one job at a time. Signals are emitted on the
/// thread that the worker belongs to.
class FileWorker : public QObject
{
    Q_OBJECT

public:
    explicit FileWorker(QObject* parent = nullptr);
    ~FileWorker() override; ///< Stops the running job and waits for its end.

    bool isBusy() const { return m_thread != nullptr; }
    void open(const QString& path, const drawing::OpenOptions& options);
    /// The drawing must not be changed until the job has ended.
    void save(drawing::Drawing& drawing, const QString& path);
    void cancel();

signals:
    void started(const QString& what);
    void progress(int percent);
    void opened(const std::shared_ptr<drawing::Drawing>& drawing);
    void saved(const QString& path);
    void openFailed(
        const QString& path, const drawing::OpenOptions& options, const drawing::Error& error);
    void saveFailed(const QString& path, const drawing::Error& error);
    /// Emitted directly before one of the four signals above; the next job may start.
    void finished();

private:
    void start(const QString& what, std::function<std::function<void()>()> job);
    void conclude(const std::function<void()>& outcome);

    drawing::Progress m_progress;
    std::unique_ptr<QThread> m_thread;
};
