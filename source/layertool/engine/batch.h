#pragma once

#include "arguments.h"
#include "job.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace layertool {

/// How drawings are worked on.
struct BatchLimits
{
    int processes = 1;
    int seconds = 0;        ///< For each drawing; 0 for no limit.
    int megabytes = 0;      ///< For each process, which keeps to it by itself; 0 for no limit.
    bool failsFast = false; ///< Begins nothing new once a drawing has failed.
};

/// Works on drawings in processes of this same program, one drawing at a time in each, so that one
/// that brings its process down, or takes longer than it may, costs itself alone.
class Batch : public QObject
{
    Q_OBJECT

public:
    using Listener = std::function<void(const Result& result)>;

    /// `drawings` is how many the run tells of, those included that need no work.
    Batch(const Arguments& arguments, int drawings, const BatchLimits& limits);
    ~Batch() override;

    /// Runs the jobs, whose numbers are their places, and tells of each result as it comes. An
    /// event loop runs meanwhile.
    void run(const std::vector<Job>& jobs, const Listener& listener);
    /// Gives out no more jobs and lets those under way end; nothing half-done is left.
    void interrupt();

private:
    struct Worker;

    void startWorker();
    void connectWorker(Worker& worker);
    void feed(Worker& worker);
    void readAnswers(Worker& worker);
    /// Nothing as long as an answer is not whole.
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
    std::vector<Job> m_waiting; ///< The next one is the last.
    bool m_isInterrupted = false;
};

} // namespace layertool
