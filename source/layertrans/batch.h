#pragma once

#include "console.h"
#include "options.h"

#include <QObject>
#include <QTemporaryDir>

#include <memory>
#include <vector>

class QProcess;

/// Translates drawings in worker processes of this same program, one drawing at a time in each, so
/// that one that brings its process down costs itself alone.
class Batch : public QObject
{
    Q_OBJECT

public:
    explicit Batch(const Options& options);
    ~Batch() override;

    /// Runs the jobs and returns what became of each, in their order. An event loop runs meanwhile.
    Outcomes run(const std::vector<Job>& jobs);
    /// Gives out no more jobs and lets those under way end; nothing half-done is left.
    void interrupt();

private:
    struct Worker;

    void begin(const std::vector<Job>& jobs);
    void startWorkers();
    void startWorker();
    void feed(Worker& worker);
    void readAnswers(Worker& worker);
    void onFinished(Worker& worker);
    void settle(const Outcome& outcome);

    const Options& m_options;
    std::unique_ptr<QTemporaryDir> m_staging;
    std::vector<std::unique_ptr<Worker>> m_workers;
    std::vector<Job> m_waiting; // The next one is the last.
    Outcomes m_outcomes;
    ProgressLine m_progress;
    int m_done = 0;
    int m_failed = 0;
    bool m_isInterrupted = false;
};
