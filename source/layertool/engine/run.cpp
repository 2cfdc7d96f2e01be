#include "run.h"

#include "batch.h"
#include "commandline.h"
#include "console.h"
#include "file/textcodec.h"
#include "filecause.h"
#include "fingerprint.h"
#include "folderlock.h"
#include "formats/csv.h"
#include "formats/printer.h"
#include "inputs.h"
#include "interruption.h"
#include "journal.h"
#include "report.h"
#include "texts.h"

#include <QDateTime>
#include <QDir>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QThread>

#include <cerrno>
#include <cstdio>
#include <optional>

namespace layertool {

namespace {

constexpr int kSignalExit = 128; ///< By convention, the signal's number is added.

int fail(int code, const QString& text)
{
    complainOf(text);
    return code;
}

RunVerb runVerbOf(const VerbRow& row, const Arguments& arguments)
{
    const QString name = (arguments.verb + QLatin1Char(' ') + arguments.action).trimmed();
    return {name, editsDrawings(row, arguments)};
}

/// The destination of the printed results: standard output, or a file that replaces an existing one
/// when it is complete.
class Sink
{
public:
    explicit Sink(const QString& path) : m_path(path), m_file(path) {}

    bool open()
    {
        return m_path.isEmpty() ? m_stdout.open(stdout, QIODevice::WriteOnly)
                                : m_file.open(QIODevice::WriteOnly);
    }
    QFileDevice& device()
    {
        return m_path.isEmpty() ? static_cast<QFileDevice&>(m_stdout) : m_file;
    }
    Expected<void> finish()
    {
        if (m_path.isEmpty() ? m_stdout.flush() : m_file.commit())
            return {};
        const QString name = isFile() ? m_path : Texts::tr("标准输出");
        return tl::make_unexpected(
            Error{Texts::tr("无法写入“%1”：%2。").arg(name, causeOf(device()))});
    }
    bool isFile() const { return !m_path.isEmpty(); }
    /// Flushes the output so that a reader sees the results so far.
    void showNow()
    {
        if (!isFile())
            m_stdout.flush();
    }

private:
    QString m_path;
    QFile m_stdout;
    QSaveFile m_file;
};

/// One run of a verb, from the plan to the report.
class Run
{
public:
    Run(const Arguments& arguments, const VerbRow& row)
        : m_arguments(arguments),
          m_row(row),
          m_progress(arguments.isSet("quiet"))
    {
    }

    Expected<void> prepare();
    int execute();

private:
    Expected<void> checkPlaces() const;
    Expected<void> checkEncoding() const;
    Expected<void> openJournal();
    Expected<void> openSink();
    QStringList precious() const;
    void skipProven();
    void take(const Result& result);
    void printReady();
    void record(const Result& result);
    void removeOutdated(const Result& result) const;
    int finish();
    BatchLimits limits() const;

    const Arguments& m_arguments;
    const VerbRow& m_row;
    std::unique_ptr<Verb> m_verb;
    std::vector<Job> m_jobs;
    std::unique_ptr<FolderLock> m_lock;
    std::optional<Journal> m_journal;
    QByteArray m_fingerprint;
    std::unique_ptr<QTemporaryDir> m_staging;
    std::unique_ptr<Sink> m_sink;
    std::unique_ptr<Printer> m_printer;
    ProgressLine m_progress;
    Results m_results;          ///< Indexed by the numbers of their jobs.
    std::vector<bool> m_isHere; ///< Whether each result has arrived.
    size_t m_printed = 0;
    Totals m_totals;
    QString m_journalFault;
};

Expected<void> Run::checkPlaces() const
{
    if (!editsDrawings(m_row, m_arguments))
        return {};
    const bool hasOut = m_arguments.isSet("out");
    const bool isInPlace = m_arguments.isSet("in-place");
    if (hasOut && isInPlace)
        return tl::make_unexpected(Error{Texts::tr("--out 与 --in-place 只能给出一个。")});
    if (!hasOut && !isInPlace && !m_arguments.isSet("dry-run"))
        return tl::make_unexpected(Error{Texts::tr(
            "改动写到哪里？用 --out 给出输出文件夹，或用 --in-place 写回，或用 --dry-run 只看。")});
    if (m_arguments.isSet("backup") && !isInPlace)
        return tl::make_unexpected(Error{Texts::tr("--backup 只与 --in-place 一起使用。")});
    return {};
}

Expected<void> Run::checkEncoding() const
{
    const QString name = m_arguments.value("encoding");
    if (name.isEmpty() || drawing::TextCodec::ofCodePage(name.toStdString()))
        return {};
    return tl::make_unexpected(Error{Texts::tr("没有名为“%1”的代码页。").arg(name)});
}

/// The files that outputs must not overwrite.
QStringList Run::precious() const
{
    QStringList paths;
    for (const OptionRow& option : optionsOf(m_row)) {
        if (option.kind == OptionKind::File || option.kind == OptionKind::Path)
            paths += m_arguments.values(option.name);
    }
    return paths;
}

Expected<void> Run::prepare()
{
    m_verb = m_row.make();
    if (auto done = checkPlaces(); !done)
        return done;
    if (auto done = checkEncoding(); !done)
        return done;
    if (auto done = m_verb->prepare(m_arguments); !done)
        return done;
    const auto shard = shardOf(m_arguments);
    if (!shard)
        return tl::make_unexpected(shard.error());
    const auto plan = planJobs(m_arguments, m_row, precious());
    if (!plan)
        return tl::make_unexpected(plan.error());
    for (const QString& notice : plan->notices)
        complainOf(notice);
    m_jobs = jobsOf(*shard, plan->jobs);
    for (size_t i = 0; i < m_jobs.size(); ++i)
        m_jobs[i].number = static_cast<int>(i);
    if (m_arguments.isSet("out")) {
        if (auto done = openJournal(); !done)
            return done;
    }
    return openSink();
}

Expected<void> Run::openJournal()
{
    const QString out = m_arguments.value("out");
    const auto fingerprint = runFingerprint(m_arguments, optionsOf(m_row));
    if (!fingerprint)
        return tl::make_unexpected(fingerprint.error());
    m_fingerprint = *fingerprint;
    if (!QDir().mkpath(Journal::folderOf(out)))
        return tl::make_unexpected(
            Error{Texts::tr("无法新建输出文件夹“%1”：%2。").arg(out, systemCause(errno))});
    auto lock = FolderLock::take(out, *shardOf(m_arguments), m_arguments.isSet("wait"));
    if (!lock)
        return tl::make_unexpected(lock.error());
    m_lock = std::move(*lock);
    auto journal = Journal::open(out, runVerbOf(m_row, m_arguments));
    if (!journal)
        return tl::make_unexpected(journal.error());
    m_journal = std::move(*journal);
    m_staging = std::make_unique<QTemporaryDir>(
        QDir(Journal::folderOf(out)).filePath(QStringLiteral("staging-XXXXXX")));
    for (Job& job : m_jobs) {
        job.isProven = true;
        job.staging = m_staging->path();
    }
    return {};
}

Expected<void> Run::openSink()
{
    m_sink = std::make_unique<Sink>(m_arguments.value("output"));
    if (!m_sink->open())
        return tl::make_unexpected(
            Error{Texts::tr("无法写入“%1”：%2。")
                      .arg(m_arguments.value("output"), causeOf(m_sink->device()))});
    const Printing printing{
        *m_verb, m_arguments, static_cast<int>(m_jobs.size()), m_sink->isFile()};
    m_printer = makePrinter(formatOf(m_arguments, m_row), printing);
    return {};
}

/// Skips drawings that are done according to the journal, and keeps their results.
void Run::skipProven()
{
    if (!m_journal || m_arguments.isSet("force"))
        return;
    const auto isProven = [this](const Job& job) {
        if (Interruption::signalNumber() != 0 || !m_journal->proves(job, m_fingerprint))
            return false;
        Result result = m_journal->find(job.input)->result;
        result.number = job.number;
        result.status = Result::Status::Skipped;
        take(result);
        return true;
    };
    m_jobs.erase(std::remove_if(m_jobs.begin(), m_jobs.end(), isProven), m_jobs.end());
}

void Run::record(const Result& result)
{
    if (!m_journal || result.status == Result::Status::Skipped ||
        result.status == Result::Status::Cancelled)
        return;
    const JournalEntry entry{result, m_fingerprint, m_journal->verb(),
        QDateTime::currentDateTimeUtc().toMSecsSinceEpoch()};
    removeOutdated(result);
    if (const auto written = m_journal->append(entry); !written && m_journalFault.isEmpty())
        m_journalFault = written.error().text;
}

/// Removes files that an earlier run wrote for a drawing and that this run did not, because they
/// would seem to belong to its result. Files that were changed since are kept.
void Run::removeOutdated(const Result& result) const
{
    const JournalEntry* const earlier = m_journal->find(result.input);
    if (!earlier || result.status != Result::Status::Done)
        return;
    for (const WrittenFile& file : earlier->result.written) {
        const bool isWritten = std::any_of(result.written.begin(), result.written.end(),
            [&file](const WrittenFile& now) { return now.path == file.path; });
        if (!isWritten && stampOf(file.path) == file.stamp)
            QFile::remove(file.path);
    }
}

void Run::take(const Result& result)
{
    record(result);
    m_totals.add(result);
    const auto at = static_cast<size_t>(result.number);
    m_results[at] = result;
    m_isHere[at] = true;
    m_progress.clear();
    printReady();
    m_progress.show(m_totals.drawings, static_cast<int>(m_results.size()), m_totals.failed);
}

/// Prints the results that follow the ones already printed. Results arrive in any order.
void Run::printReady()
{
    for (; m_printed < m_results.size() && m_isHere[m_printed]; ++m_printed) {
        Result& result = m_results[m_printed];
        const QByteArray text = result.printed ? *result.printed : m_printer->textOf(result);
        m_sink->device().write(m_printer->added(result, text));
        result.printed.reset();
        result.data = {};
        if (result.status == Result::Status::Failed)
            complainOf(Texts::tr("图形“%1”失败：%2").arg(result.input, result.text));
    }
    m_sink->showNow();
}

BatchLimits Run::limits() const
{
    BatchLimits limits;
    limits.processes = std::max(1, m_arguments.number("jobs", QThread::idealThreadCount()));
    limits.seconds = m_arguments.number("time-limit", 0);
    limits.megabytes = m_arguments.number("memory-limit", 0);
    limits.failsFast = m_arguments.isSet("fail-fast");
    return limits;
}

int Run::execute()
{
    for (const Job& job : m_jobs)
        m_results.push_back(Result(job));
    m_isHere.resize(m_jobs.size());
    const Interruption interruption;
    m_sink->device().write(m_printer->begin());
    skipProven();
    Batch batch(m_arguments, static_cast<int>(m_results.size()), limits());
    QObject::connect(&interruption, &Interruption::interrupted, &batch, &Batch::interrupt);
    batch.run(m_jobs, [this](const Result& result) { take(result); });
    m_progress.clear();
    m_sink->device().write(m_printer->end());
    return finish();
}

int Run::finish()
{
    if (const auto done = m_sink->finish(); !done)
        return fail(kFound, done.error().text);
    if (!m_arguments.isSet("quiet") && m_results.size() > 1) {
        for (const QString& line : m_totals.lines())
            complain(line);
    }
    if (!m_journalFault.isEmpty())
        return fail(kFound, m_journalFault);
    if (m_arguments.isSet("report")) {
        std::vector<ReportRow> rows;
        for (const Result& result : m_results)
            rows.push_back({runVerbOf(m_row, m_arguments).name, result});
        if (const auto written = writeReport(m_arguments.value("report"), rows); !written)
            return fail(kFound, written.error().text);
    }
    if (Interruption::signalNumber() != 0)
        return fail(kSignalExit + Interruption::signalNumber(),
            Texts::tr("已中断：写好的图形都是完整的，再次运行会接着做。"));
    return m_totals.isComplete() && m_totals.found == 0 ? kFine : kFound;
}

} // namespace

int runVerb(const Arguments& arguments, const VerbRow& row)
{
    Run run(arguments, row);
    if (const auto ready = run.prepare(); !ready)
        return fail(kMisuse, ready.error().text);
    return run.execute();
}

int runReport(const Arguments& arguments)
{
    if (arguments.paths.size() != 1)
        return fail(kMisuse, Texts::tr("要给出一个输出文件夹。"));
    const auto journal = Journal::read(arguments.paths.front());
    if (!journal)
        return fail(kMisuse, journal.error().text);
    const std::vector<JournalEntry> entries = journal->entries();
    Totals totals;
    std::vector<ReportRow> rows;
    for (const JournalEntry& entry : entries) {
        totals.add(entry.result);
        rows.push_back({entry.verb.name, entry.result});
    }
    if (arguments.isSet("output")) {
        if (const auto written = writeReport(arguments.value("output"), rows); !written)
            return fail(kFound, written.error().text);
    } else {
        const QByteArray bytes = reportCsv(rows);
        std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    }
    if (!arguments.isSet("quiet")) {
        for (const QString& line : totals.lines())
            complain(line);
    }
    return totals.isComplete() && totals.found == 0 ? kFine : kFound;
}

} // namespace layertool
