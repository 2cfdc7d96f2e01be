#pragma once

#include "file/error.h"
#include "job.h"

#include <QStringList>

namespace layertool {

/// The sums over drawings.
struct Totals
{
    int drawings = 0;
    int done = 0;
    int skipped = 0; ///< Of those done: by an earlier run, as the journal proves.
    int changed = 0;
    int found = 0; ///< Drawings with something to report.
    int failed = 0;
    int cancelled = 0; ///< An interruption came before or while they were worked on.

    void add(const Result& result);
    bool isComplete() const { return failed == 0 && cancelled == 0; }
    /// Lines for people.
    QStringList lines() const;
};

/// A result, and the verb that it is of.
struct ReportRow
{
    QString verb;
    const Result& result;
};

/// Writes a CSV file (UTF-8, with a mark for spreadsheets), a row a drawing: what became of it, its
/// counts, and the identifiers and sentences of its notices. Replaces the file when it is whole;
/// refuses with a sentence.
drawing::Expected<void> writeReport(const QString& path, const std::vector<ReportRow>& rows);

/// The report's bytes, with no mark in front.
QByteArray reportCsv(const std::vector<ReportRow>& rows);

} // namespace layertool
