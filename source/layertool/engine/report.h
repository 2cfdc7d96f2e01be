#pragma once

#include "file/error.h"
#include "job.h"

#include <QStringList>

namespace layertool {

/// Totals over several drawings.
struct Totals
{
    int drawings = 0;
    int done = 0;
    /// Those of the finished drawings that an earlier run had already done, as its journal proves.
    int skipped = 0;
    int changed = 0;
    int found = 0; ///< The number of drawings with something to report.
    int failed = 0;
    int cancelled = 0; ///< An interruption came before or during the work on them.

    void add(const Result& result);
    bool isComplete() const { return failed == 0 && cancelled == 0; }
    /// The totals as lines for people.
    QStringList lines() const;
};

/// A result and the verb that produced it.
struct ReportRow
{
    QString verb;
    const Result& result;
};

/// Writes a CSV file (UTF-8 with a byte order mark for spreadsheets) with one row per drawing: its
/// status, its counts, and the identifiers and sentences of its notices. An existing file is
/// replaced only when the new one is complete. Refuses with a sentence.
drawing::Expected<void> writeReport(const QString& path, const std::vector<ReportRow>& rows);

/// The bytes of the report without a byte order mark.
QByteArray reportCsv(const std::vector<ReportRow>& rows);

} // namespace layertool
