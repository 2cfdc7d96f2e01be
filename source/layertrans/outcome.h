#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// A drawing to translate. Passed to worker processes as a line of JSON.
struct Job
{
    int number = 0; ///< Its place among all jobs, from 0.
    QString input;
    QString output;
    QString staging; ///< A folder on the output's file system for what is not whole yet.

    QByteArray toLine() const;
    static Job fromLine(const QByteArray& line);
};

/// What became of a drawing. Comes back from worker processes as a line of JSON.
struct Outcome
{
    enum class Status { Translated, Skipped, Failed, Cancelled };

    int number = 0; ///< Of its job.
    QString input;
    QString output;
    Status status = Status::Failed;
    int applied = 0;   ///< Mappings carried out.
    int leftOut = 0;   ///< Mappings that were not.
    int moved = 0;     ///< Entities translated.
    int untouched = 0; ///< Entities left as they were.
    QString text;      ///< Why it failed, or what could not be done as asked.

    explicit Outcome(const Job& job = {}) : number(job.number), input(job.input), output(job.output)
    {
    }
    QByteArray toLine() const;
    static Outcome fromLine(const QByteArray& line);
};

using Outcomes = std::vector<Outcome>;

/// A word for a status, as reports have it.
QString statusText(Outcome::Status status);

/// The sums over drawings.
struct Totals
{
    int drawings = 0;
    int translated = 0;
    int skipped = 0;
    int failed = 0;
    int cancelled = 0; ///< An interruption came before or while they were done.
    qint64 applied = 0;
    qint64 leftOut = 0;
    qint64 moved = 0;
    qint64 untouched = 0;

    static Totals of(const Outcomes& outcomes);
    bool isComplete() const { return failed == 0 && cancelled == 0; }
};
