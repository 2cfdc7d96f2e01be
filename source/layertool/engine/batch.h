#pragma once

#include "arguments.h"
#include "job.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace layertool {

/// Limits for the work on many drawings.
struct BatchLimits
{
    int processes = 1;
    int seconds = 0;        ///< The time per drawing; 0 for no limit.
    int megabytes = 0;      ///< The memory that each process allows itself; 0 for no limit.
    bool failsFast = false; ///< Starts nothing new after the first failure.
};

/// Processes drawings in worker processes, which run this same program and handle one drawing at a
/// time. A drawing that crashes its process or exceeds its time therefore affects no other.
class Batch : public QObject
{
    Q_OBJECT

public:
    using Listener = std::function<void(const Result& result)>;

    /// `drawings` is the number of drawings in the run's report, including those that need no work.
    Batch(const Arguments& arguments, int drawings, const BatchLimits& limits);
    ~Batch() override;

    /// Runs the jobs, whose numbers are their indices, and passes each result to `listener` as soon
    /// as it arrives. An event loop runs meanwhile.
    void run(const std::vector<Job>& jobs, const Listener& listener);
    /// Starts no more jobs and lets the running ones finish, so that no output is left incomplete.
    void interrupt();

private:
    struct Worker;

    void startWorker();
    void connectWorker(Worker& worker);
    void feed(Worker& worker);
    void readAnswers(Worker& worker);
    /// Returns nothing until the answer is complete.
    static std::optional<Result> takeAnswer(Worker& worker);
    void onFinished(Worker& worker);
    void settle(const Result& result);
    void failWaiting(const QString& cause);
    void failOrCancel(const Worker& worker, Result& result) const;
    bool isStopping() const;

    const Arguments& m_arguments;
    int m_drawings = 0;
    BatchLimits m_limits;
    Listener m_listener;
    std::vector<std::unique_ptr<Worker>> m_workers;
    std::vector<Job> m_waiting; ///< The next job is the last element.
    bool m_isInterrupted = false;
};

} // namespace layertool
