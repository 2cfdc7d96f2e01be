#pragma once

#include "filestamp.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

namespace layertool {

/// One drawing to process. Jobs are passed to worker processes as lines of JSON.
struct Job
{
    int number = 0; ///< Its index among all jobs, from 0.
    QString input;
    QString other; ///< The drawing to compare with, for verbs that take two.
    bool isAlone =
        false; ///< Only one folder of two has it: the second if `isSecond`, else the first.
    bool isSecond = false;
    QString name;    ///< The name in outputs and reports: the path relative to the root.
    QString output;  ///< Empty when nothing is written.
    QString staging; ///< A folder on the output's file system for files that are not complete yet.
    bool keepsBackup = false;
    bool isProven = false; ///< Whether the result must contain the stamps that prove it later.
    bool isStamped() const { return isProven || output == input; }

    QByteArray toLine() const;
    static Job fromLine(const QByteArray& line);
};

/// A file that a verb wrote, with its state when it was moved into place.
struct WrittenFile
{
    QString path;
    FileStamp stamp;
};

/// A complete file that still has to be moved into place.
struct StagedFile
{
    QString from;
    QString to;
};

/// The outcome for one drawing. Worker processes send it as a line of JSON, and the journal stores
/// it.
struct Result
{
    enum class Status : quint8 { Done, Skipped, Failed, Cancelled };

    int number = 0; ///< The number of its job.
    QString input;
    QString name;
    QString output; ///< Empty when nothing was written.
    Status status = Status::Failed;
    bool found = false;   ///< Whether there is something to report: a finding or a difference.
    bool changed = false; ///< Whether the drawing was changed.
    QString error;        ///< The reason for a failure, one of the words in `errorid`.
    QString text;         ///< The reason for a failure as a sentence.
    QJsonObject counts;   ///< Counts by their English names.
    QJsonArray notices;   ///< Objects with "id" and "text".
    QJsonArray data;      ///< The rows of the verb's answer as objects.
    /// The same rows by the verb's columns, for verbs that answer in this form. Only used inside a
    /// worker.
    std::vector<std::vector<QVariant>> cells = {};
    /// The printed form; empty while it has not been made. Not stored in the journal.
    std::optional<QByteArray> printed = {};
    double seconds = 0;
    FileStamp inputStamp; ///< The drawing as it was read; null when no proof is needed.
    FileStamp otherStamp;
    /// The files that are in place, with the stamps that prove it.
    std::vector<WrittenFile> written;
    std::vector<StagedFile> staged = {}; ///< Moved into place by the worker and not stored.

    explicit Result(const Job& job = {})
        : number(job.number),
          input(job.input),
          name(job.name),
          output(job.output)
    {
    }
    void note(const char* id, const QString& sentence);
    void notes(const char* id, const QStringList& sentences);
    void fail(const char* id, const QString& sentence);

    QJsonObject toJson() const;
    static Result fromJson(const QJsonObject& json);
};

using Results = std::vector<Result>;

/// The reasons for failures as words in machine-readable formats.
namespace errorid {
inline constexpr char kDrawing[] = "drawing-unreadable";
inline constexpr char kChanged[] = "drawing-changed-meanwhile";
inline constexpr char kRefused[] = "refused";
inline constexpr char kWrite[] = "not-written";
inline constexpr char kCrash[] = "process-ended";
inline constexpr char kStart[] = "process-not-started";
inline constexpr char kTime[] = "time-limit";
inline constexpr char kMemory[] = "memory-limit";
} // namespace errorid

/// The English word for a status, as used in reports.
QString statusWord(Result::Status status);

QByteArray lineOf(const QJsonObject& json);

} // namespace layertool
