#include "batch.h"

#include "interruption.h"
#include "texts.h"
#include "worker.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace layertool {

struct Batch::Worker
{
    QProcess process;
    QTimer clock;
    std::optional<Job> job;       ///< The job under way.
    std::optional<Result> answer; ///< As far as it has arrived.
    int printedSize = 0;          ///< The size of the printed form, which follows the answer.
    bool isLate = false;          ///< Whether it exceeded its time and was stopped.
    bool hasEnded = false;
};

Batch::Batch(const Arguments& arguments, int drawings, const BatchLimits& limits)
    : m_arguments(arguments),
      m_drawings(drawings),
      m_limits(limits)
{
}

Batch::~Batch() = default;

void Batch::run(const std::vector<Job>& jobs, const Listener& listener)
{
    m_listener = listener;
    m_waiting.assign(jobs.rbegin(), jobs.rend());
    const auto count = std::min(static_cast<size_t>(m_limits.processes), m_waiting.size());
    for (size_t i = 0; i < count && !isStopping(); ++i)
        startWorker();
    const auto isBusy = [](const std::unique_ptr<Worker>& worker) { return !worker->hasEnded; };
    while (std::any_of(m_workers.begin(), m_workers.end(), isBusy))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    for (; !m_waiting.empty(); m_waiting.pop_back()) {
        Result result(m_waiting.back());
        result.status = Result::Status::Cancelled;
        m_listener(result);
    }
}

void Batch::startWorker()
{
    m_workers.push_back(std::make_unique<Worker>());
    Worker& worker = *m_workers.back();
    worker.process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    worker.clock.setSingleShot(true);
    connectWorker(worker);
    worker.process.start(QCoreApplication::applicationFilePath(), {QLatin1String(kWorkerOption)});
}

void Batch::connectWorker(Worker& worker)
{
    connect(&worker.process, &QProcess::started, this, [this, &worker] {
        worker.process.write(workerOrder(m_arguments, m_drawings));
        feed(worker);
    });
    connect(&worker.process, &QProcess::readyReadStandardOutput, this,
        [this, &worker] { readAnswers(worker); });
    connect(&worker.process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
        [this, &worker] { onFinished(worker); });
    connect(&worker.process, &QProcess::errorOccurred, this,
        [this, &worker](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                onFinished(worker);
        });
    connect(&worker.clock, &QTimer::timeout, this, [&worker] {
        worker.isLate = true;
        worker.process.kill();
    });
}

void Batch::feed(Worker& worker)
{
    if (isStopping() || m_waiting.empty()) {
        worker.process.closeWriteChannel();
        return;
    }
    worker.job = m_waiting.back();
    m_waiting.pop_back();
    worker.process.write(worker.job->toLine());
    if (m_limits.seconds > 0)
        worker.clock.start(m_limits.seconds * 1000);
}

std::optional<Result> Batch::takeAnswer(Worker& worker)
{
    if (!worker.answer && worker.process.canReadLine()) {
        const QJsonObject json = QJsonDocument::fromJson(worker.process.readLine()).object();
        worker.answer = Result::fromJson(json);
        worker.printedSize = json.value(QLatin1String(kPrintedSize)).toInt();
    }
    if (!worker.answer || worker.process.bytesAvailable() < worker.printedSize)
        return std::nullopt;
    worker.answer->printed = worker.process.read(worker.printedSize);
    return std::exchange(worker.answer, std::nullopt);
}

void Batch::readAnswers(Worker& worker)
{
    while (const auto result = takeAnswer(worker)) {
        if (!worker.job || result->number != worker.job->number)
            continue;
        worker.job.reset();
        worker.clock.stop();
        settle(*result);
        feed(worker);
    }
}

/// Signals reach the workers at the same time as this process, whose event loop notices them later.
bool Batch::isStopping() const
{
    return m_isInterrupted || Interruption::signalNumber() != 0;
}

void Batch::failOrCancel(const Worker& worker, Result& result) const
{
    const bool isOutOfMemory = worker.process.exitStatus() == QProcess::NormalExit &&
                               worker.process.exitCode() == kOutOfMemoryExit;
    if (worker.isLate)
        result.fail(
            errorid::kTime, Texts::tr("处理它用时超过了 %1 秒，已放弃。").arg(m_limits.seconds));
    else if (isOutOfMemory)
        result.fail(errorid::kMemory,
            m_limits.megabytes > 0
                ? Texts::tr("处理它所需的内存超过了 %1 MB，已放弃。").arg(m_limits.megabytes)
                : Texts::tr("处理它时内存不足，已放弃。"));
    else if (Interruption::signalNumber() != 0)
        result.status = Result::Status::Cancelled;
    else
        result.fail(errorid::kCrash, Texts::tr("处理它的进程意外结束。"));
}

void Batch::onFinished(Worker& worker)
{
    if (worker.hasEnded)
        return;
    readAnswers(worker);
    worker.hasEnded = true;
    worker.clock.stop();
    const bool wasBusy = worker.job.has_value();
    if (wasBusy) {
        Result result(*worker.job);
        failOrCancel(worker, result);
        settle(result);
    }
    if (isStopping() || m_waiting.empty())
        return;
    if (wasBusy) {
        startWorker();
        return;
    }
    // If a worker cannot be started, the others do its work as long as there are any.
    if (std::all_of(m_workers.begin(), m_workers.end(),
            [](const std::unique_ptr<Worker>& other) { return other->hasEnded; }))
        failWaiting(worker.process.errorString());
}

void Batch::failWaiting(const QString& cause)
{
    while (!m_waiting.empty() && !isStopping()) {
        Result result(m_waiting.back());
        m_waiting.pop_back();
        result.fail(errorid::kStart, Texts::tr("不能启动处理它的进程：%1。").arg(cause));
        settle(result);
    }
}

void Batch::settle(const Result& result)
{
    m_listener(result);
    if (m_limits.failsFast && result.status == Result::Status::Failed)
        m_isInterrupted = true;
}

void Batch::interrupt()
{
    m_isInterrupted = true;
    for (const auto& worker : m_workers) {
        if (worker->hasEnded)
            continue;
        worker->process.closeWriteChannel();
        worker->process.terminate();
    }
}

} // namespace layertool
