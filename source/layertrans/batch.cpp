#include "batch.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <optional>

namespace {

QStringList workerArguments(const Options& options)
{
    QStringList arguments{
        QStringLiteral("--worker"), QStringLiteral("--standard"), options.standard};
    if (options.mapSame)
        arguments += QStringLiteral("--map-same");
    for (const QString& name : options.translationNames)
        arguments += {QStringLiteral("--option"), name};
    return arguments;
}

} // namespace

struct Batch::Worker
{
    QProcess process;
    std::optional<Job> job; // Under way.
    bool hasEnded = false;
};

Batch::Batch(const Options& options) : m_options(options) {}

Batch::~Batch() = default;

Outcomes Batch::run(const std::vector<Job>& jobs)
{
    begin(jobs);
    startWorkers();
    const auto isBusy = [](const std::unique_ptr<Worker>& worker) { return !worker->hasEnded; };
    while (std::any_of(m_workers.begin(), m_workers.end(), isBusy))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    m_progress.clear();
    m_staging.reset();
    for (const Job& job : m_waiting)
        m_outcomes[static_cast<size_t>(job.number)].status = Outcome::Status::Cancelled;
    return m_outcomes;
}

/// Sets out what is there already, and makes a folder for what is not whole yet.
void Batch::begin(const std::vector<Job>& jobs)
{
    m_staging = std::make_unique<QTemporaryDir>(
        QDir(m_options.out).filePath(QStringLiteral(".layertrans-XXXXXX")));
    for (const Job& job : jobs) {
        Job numbered = job;
        numbered.number = static_cast<int>(m_outcomes.size());
        numbered.staging = m_staging->path();
        m_outcomes.push_back(Outcome(numbered));
        m_waiting.push_back(numbered);
    }
    const auto isThere = [this](const Job& job) {
        return !m_options.force && QFileInfo::exists(job.output);
    };
    const auto firstThere = std::stable_partition(
        m_waiting.begin(), m_waiting.end(), [&isThere](const Job& job) { return !isThere(job); });
    for (auto job = firstThere; job != m_waiting.end(); ++job) {
        Outcome outcome(*job);
        outcome.status = Outcome::Status::Skipped;
        settle(outcome);
    }
    m_waiting.erase(firstThere, m_waiting.end());
    std::reverse(m_waiting.begin(), m_waiting.end());
}

void Batch::startWorkers()
{
    const auto count = std::min(static_cast<size_t>(m_options.jobs), m_waiting.size());
    for (size_t i = 0; i < count; ++i)
        startWorker();
}

void Batch::startWorker()
{
    m_workers.push_back(std::make_unique<Worker>());
    Worker& worker = *m_workers.back();
    worker.process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&worker.process, &QProcess::started, this, [this, &worker] { feed(worker); });
    connect(&worker.process, &QProcess::readyReadStandardOutput, this,
        [this, &worker] { readAnswers(worker); });
    connect(&worker.process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
        [this, &worker] { onFinished(worker); });
    connect(&worker.process, &QProcess::errorOccurred, this,
        [this, &worker](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                onFinished(worker);
        });
    worker.process.start(QCoreApplication::applicationFilePath(), workerArguments(m_options));
}

void Batch::feed(Worker& worker)
{
    if (m_isInterrupted || m_waiting.empty()) {
        worker.process.closeWriteChannel();
        return;
    }
    worker.job = m_waiting.back();
    m_waiting.pop_back();
    worker.process.write(worker.job->toLine());
}

void Batch::readAnswers(Worker& worker)
{
    while (worker.process.canReadLine()) {
        const Outcome outcome = Outcome::fromLine(worker.process.readLine());
        if (!worker.job || outcome.number != worker.job->number)
            continue;
        worker.job.reset();
        settle(outcome);
        feed(worker);
    }
}

void Batch::onFinished(Worker& worker)
{
    if (worker.hasEnded)
        return;
    readAnswers(worker);
    worker.hasEnded = true;
    const bool wasBusy = worker.job.has_value();
    if (wasBusy) {
        Outcome outcome(*worker.job);
        outcome.status = m_isInterrupted ? Outcome::Status::Cancelled : Outcome::Status::Failed;
        outcome.text = m_isInterrupted ? QString() : tr("处理它的进程意外结束。");
        settle(outcome);
    }
    if (m_isInterrupted || m_waiting.empty())
        return;
    if (wasBusy) {
        startWorker();
        return;
    }
    // It ended before it took a job, so others would do the same.
    const Job job = m_waiting.back();
    m_waiting.pop_back();
    Outcome outcome(job);
    outcome.text = tr("不能启动处理它的进程：%1。").arg(worker.process.errorString());
    settle(outcome);
    startWorker();
}

void Batch::settle(const Outcome& outcome)
{
    m_outcomes[static_cast<size_t>(outcome.number)] = outcome;
    ++m_done;
    m_failed += outcome.status == Outcome::Status::Failed ? 1 : 0;
    const int total = static_cast<int>(m_outcomes.size());
    m_progress.clear();
    say(summaryLine(outcome, m_done, total));
    m_progress.show(m_done, total, m_failed);
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
