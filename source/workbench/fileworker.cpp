#include "fileworker.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>

namespace {

/// The share of opening that reading the file takes; the rest is flattening.
constexpr int kReadPercent = 60;

/// Has the work that follows report its percents as those between `from` and `to` of the whole.
void setShare(drawing::Progress* progress, const std::function<void(int)>& report, int from, int to)
{
    if (progress && report)
        progress->report = [=](int percent) { report(from + percent * (to - from) / 100); };
}

} // namespace

drawing::Expected<OpenedFile> readFile(const QString& path, drawing::Progress* progress,
    QThread* owner, const drawing::OpenOptions& options)
{
    const std::function<void(int)> report = progress ? progress->report : nullptr;
    setShare(progress, report, 0, kReadPercent);
    auto drawing = drawing::Drawing::open(path, progress, owner, options);
    if (!drawing)
        return tl::unexpected(drawing.error());
    setShare(progress, report, kReadPercent, 100);
    auto geometry = drawing::buildGeometry(**drawing, progress);
    if (!geometry)
        return tl::unexpected(geometry.error());
    return OpenedFile{
        std::move(*drawing), std::make_shared<const drawing::Geometry>(std::move(*geometry))};
}

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
            auto result = readFile(path, &m_progress, owner, options);
            if (!result)
                return [=, error = result.error()] { emit openFailed(path, options, error); };
            auto file = std::make_shared<OpenedFile>(std::move(*result));
            return [=] { emit opened(file); };
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

/// Runs `job` on a thread; what it returns then runs here.
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
