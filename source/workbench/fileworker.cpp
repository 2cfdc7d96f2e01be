#include "fileworker.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>

FileWorker::FileWorker(QObject* parent) : QObject(parent) {}

FileWorker::~FileWorker()
{
    cancel();
    if (m_thread)
        m_thread->wait();
}

void FileWorker::open(const QString& path, const drawing::OpenOptions& options)
{
    QThread* const owner = thread();
    start(tr("正在打开 %1").arg(QFileInfo(path).fileName()),
        [this, path, owner, options]() -> std::function<void()> {
            auto result = drawing::Drawing::open(path, &m_progress, owner, options);
            if (!result)
                return [=, error = result.error()] { emit openFailed(path, options, error); };
            const std::shared_ptr<drawing::Drawing> drawing = std::move(*result);
            return [=] { emit opened(drawing); };
        });
}

void FileWorker::save(drawing::Drawing& drawing, const QString& path)
{
    start(tr("正在保存 %1").arg(QFileInfo(path).fileName()),
        [this, path, &drawing]() -> std::function<void()> {
            const auto result = drawing.save(path, &m_progress);
            if (!result)
                return [=, error = result.error()] { emit saveFailed(path, error); };
            return [=] { emit saved(path); };
        });
}

void FileWorker::cancel()
{
    m_progress.cancelled = true;
}

/// Runs `job` on a thread and then the function that it returns on this thread.
void FileWorker::start(const QString& what, std::function<std::function<void()>()> job)
{
    Q_ASSERT(!isBusy());
    m_progress.cancelled = false;
    m_progress.report = [this](int percent) {
        QMetaObject::invokeMethod(
            this, [=] { emit progress(percent); }, Qt::QueuedConnection);
    };
    m_thread.reset(QThread::create([this, job = std::move(job)] {
        const std::function<void()> outcome = job();
        QMetaObject::invokeMethod(
            this, [=] { conclude(outcome); }, Qt::QueuedConnection);
    }));
    emit started(what);
    m_thread->start();
}

void FileWorker::conclude(const std::function<void()>& outcome)
{
    m_thread->wait();
    m_thread.reset();
    emit finished();
    outcome();
}
