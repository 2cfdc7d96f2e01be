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

/// A drawing to work on. Passed to worker processes as a line of JSON.
struct Job
{
    int number = 0; ///< Its place among all jobs, from 0.
    QString input;
    QString other;        ///< The drawing it is held against, of verbs that take two.
    bool isAlone = false; ///< Only one of two folders has it: the first one, or the second.
    bool isSecond = false;
    QString name;    ///< What outputs and reports call it: its path below the root.
    QString output;  ///< Empty where nothing is written.
    QString staging; ///< A folder on the output's file system for what is not whole yet.
    bool keepsBackup = false;
    bool isProven = false; ///< The result is to hold the stamps that prove it later.
    bool isStamped() const { return isProven || output == input; }

    QByteArray toLine() const;
    static Job fromLine(const QByteArray& line);
};

/// A file that a verb wrote, as it was when it was put into its place.
struct WrittenFile
{
    QString path;
    FileStamp stamp;
};

/// A file that is whole and waits to be put into its place.
struct StagedFile
{
    QString from;
    QString to;
};

/// What became of a drawing. Comes back from worker processes as a line of JSON, and is what the
/// journal keeps.
struct Result
{
    enum class Status : quint8 { Done, Skipped, Failed, Cancelled };

    int number = 0; ///< Of its job.
    QString input;
    QString name;
    QString output; ///< Empty where nothing was written.
    Status status = Status::Failed;
    bool found = false;   ///< Something to report: a finding, a difference.
    bool changed = false; ///< The drawing is not what it was.
    QString error;        ///< Why it failed: one of the words in `errorid`.
    QString text;         ///< Why it failed, a sentence.
    QJsonObject counts;   ///< Numbers by their English words.
    QJsonArray notices;   ///< Objects with "id" and "text".
    QJsonArray data;      ///< The rows of the verb's answer, objects.
    /// The same by the verb's columns, for verbs that answer so; kept by the worker to itself.
    std::vector<std::vector<QVariant>> cells = {};
    /// What is printed of it; nothing where that is still to be made. Not kept either.
    std::optional<QByteArray> printed = {};
    double seconds = 0;
    FileStamp inputStamp; ///< Of the drawing as it was read; null where no proof was asked for.
    FileStamp otherStamp;
    std::vector<WrittenFile> written;    ///< What stands in its place now, with its proof.
    std::vector<StagedFile> staged = {}; ///< Not kept: moved by the worker.

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

/// Why a drawing failed, in machine formats.
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

/// The English word for a status, as reports have it.
QString statusWord(Result::Status status);

QByteArray lineOf(const QJsonObject& json);

} // namespace layertool
