#pragma once

#include "file/error.h"
#include "job.h"

#include <QHash>

namespace layertool {

/// The verb of a run, with its action. Those that change drawings write the same outputs, so the
/// newest of their results is the one that stands; the others have each a result of its own.
struct RunVerb
{
    QString name;
    bool edits = false;
};

/// One line of a journal: a result, and what it was made with.
struct JournalEntry
{
    Result result;
    QByteArray run; ///< See `runFingerprint`.
    RunVerb verb;
    qint64 when = 0; ///< Milliseconds since 1970, UTC, when the result was whole.
};

/// What was done in an output folder: a file of JSON lines in its folder `.layertool`. A line is
/// appended when a drawing's output is whole and in its place. Several processes, also on several
/// machines, may append at the same time; a line cut off by a killed process is passed over.
class Journal
{
public:
    /// The journal of an output folder; what is there is read. Refuses a folder where none can be
    /// written.
    static drawing::Expected<Journal> open(const QString& outFolder, const RunVerb& verb);
    /// The same for reading alone. Refuses a folder without a journal.
    static drawing::Expected<Journal> read(const QString& outFolder);

    const RunVerb& verb() const { return m_verb; }
    /// The newest entry of the run's verb for an input; null when there is none.
    const JournalEntry* find(const QString& input) const;
    /// The newest entries for each input, in the order of their names.
    std::vector<JournalEntry> entries() const;
    /// Whether the journal proves that `job` was done: the input, the run and the output it tells
    /// of are, by their hashes, those of today.
    bool proves(const Job& job, const QByteArray& run) const;
    drawing::Expected<void> append(const JournalEntry& entry);

    static QString folderOf(const QString& outFolder);

private:
    void load(const QByteArray& bytes);
    void take(const JournalEntry& entry);

    QString m_path;
    RunVerb m_verb;
    QHash<QString, JournalEntry> m_newest; ///< By input and verb, see `keyOf`.
};

} // namespace layertool
