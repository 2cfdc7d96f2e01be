#pragma once

#include "file/error.h"
#include "job.h"

#include <QHash>

namespace layertool {

/// The verb of a run and its action. All verbs that change drawings write the same outputs, so only
/// the newest of their results is valid; every other verb has results of its own.
struct RunVerb
{
    QString name;
    bool edits = false;
};

/// One line of a journal: a result and how it was produced.
struct JournalEntry
{
    Result result;
    QByteArray run; ///< See `runFingerprint`.
    RunVerb verb;
    qint64 when = 0; ///< The time of completion in milliseconds since 1970, UTC.
};

/// Records what was done in an output folder, as JSON lines in its subfolder `.layertool`. A line
/// is appended when the output of a drawing is complete and in place. Several processes, even on
/// different machines, may append at the same time. A line that a killed process left incomplete is
/// ignored.
class Journal
{
public:
    /// Opens the journal of an output folder and reads its lines. Refuses a folder in which a
    /// journal cannot be written.
    static drawing::Expected<Journal> open(const QString& outFolder, const RunVerb& verb);
    /// Opens the journal for reading only. Refuses a folder without a journal.
    static drawing::Expected<Journal> read(const QString& outFolder);

    const RunVerb& verb() const { return m_verb; }
    /// The newest entry for an input with the run's verb; null when there is none.
    const JournalEntry* find(const QString& input) const;
    /// The newest entry for each input, sorted by name.
    std::vector<JournalEntry> entries() const;
    /// Whether the journal proves that `job` is already done: the hashes of the input, the run and
    /// the recorded outputs match the present ones.
    bool proves(const Job& job, const QByteArray& run) const;
    drawing::Expected<void> append(const JournalEntry& entry);

    static QString folderOf(const QString& outFolder);

private:
    void load(const QByteArray& bytes);
    void take(const JournalEntry& entry);

    QString m_path;
    RunVerb m_verb;
    QHash<QString, JournalEntry> m_newest; ///< See `keyOf` for the keys.
};

} // namespace layertool
