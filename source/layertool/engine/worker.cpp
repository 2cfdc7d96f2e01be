#include "worker.h"

#include "console.h"
#include "drawings.h"
#include "filecause.h"
#include "formats/printer.h"
#include "interruption.h"
#include "texts.h"
#include "verb.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace layertool {

namespace {

using drawing::Drawing;

constexpr char kDrawings[] = "drawings";

[[noreturn]] void endOutOfMemory()
{
    std::_Exit(kOutOfMemoryExit);
}

/// Called when nobody catches an exception, for example in a function that must not throw.
void endForException()
{
    try {
        if (const std::exception_ptr thrown = std::current_exception())
            std::rethrow_exception(thrown);
    } catch (const std::bad_alloc&) {
        endOutOfMemory();
    } catch (...) {
    }
    std::abort();
}

/// Limits the memory of this process. When an allocation fails the process ends, and only the
/// drawing it was working on is affected.
void limitMemory(int megabytes)
{
    std::set_new_handler(endOutOfMemory);
    std::set_terminate(endForException);
    if (megabytes <= 0)
        return;
    const auto bytes = static_cast<rlim_t>(megabytes) * 1024 * 1024;
    const rlimit limit{bytes, bytes};
    ::setrlimit(RLIMIT_AS, &limit);
}

/// Replaces a file by another one atomically.
Expected<void> moveInto(const StagedFile& file)
{
    if (std::rename(
            QFile::encodeName(file.from).constData(), QFile::encodeName(file.to).constData()) == 0)
        return {};
    return tl::make_unexpected(
        Error{Texts::tr("无法写入文件“%1”：%2。").arg(file.to, systemCause(errno))});
}

Expected<void> keepBackup(const QString& path)
{
    const QString backup = path + QStringLiteral(".bak");
    const QString fresh = backup + QStringLiteral("-new");
    QFile::remove(fresh);
    if (QFile::copy(path, fresh) && moveInto({fresh, backup}))
        return {};
    QFile::remove(fresh);
    return tl::make_unexpected(
        Error{Texts::tr("无法把原图形留为“%1”，图形没有改动。").arg(backup)});
}

/// Takes back what the result says of a drawing that could not be written, because it is as it was.
void forgetChanges(Result& result)
{
    result.changed = false;
    result.counts = {};
    result.data = {};
    result.cells.clear();
}

/// Processes one job after the other.
class Worker
{
public:
    Worker(const Arguments& arguments, const VerbRow& row, int drawings)
        : m_arguments(arguments),
          m_row(row),
          m_drawings(drawings)
    {
    }

    Expected<void> prepare();
    Result run(const Job& job);
    drawing::Progress& progress() { return m_progress; }

private:
    void answer(const Job& job, Result& result);
    bool isAsRead(const Job& job, const Result& result) const;
    Expected<void> write(Drawing& drawing, const Job& job, Result& result);

    const Arguments& m_arguments;
    const VerbRow& m_row;
    int m_drawings = 0;
    std::unique_ptr<Verb> m_verb;
    std::unique_ptr<Printer> m_printer;
    drawing::Progress m_progress;
};

Expected<void> Worker::prepare()
{
    m_verb = m_row.make();
    m_printer =
        makePrinter(formatOf(m_arguments, m_row), Printing{*m_verb, m_arguments, m_drawings});
    return m_verb->prepare(m_arguments);
}

Result Worker::run(const Job& job)
{
    QElapsedTimer clock;
    clock.start();
    Result result(job);
    if (job.isStamped()) {
        result.inputStamp = stampOf(job.input);
        result.otherStamp = job.other.isEmpty() ? FileStamp() : stampOf(job.other);
    }
    answer(job, result);
    result.seconds = static_cast<double>(clock.elapsed()) / 1000;
    result.printed = m_printer->textOf(result);
    // Only the journal still needs the rows.
    result.data = job.isProven ? m_verb->data(result) : QJsonArray();
    return result;
}

/// Whether the drawing is unchanged since it was read. If somebody saved it meanwhile, the stamp is
/// wrong and the drawing must not be replaced.
bool Worker::isAsRead(const Job& job, const Result& result) const
{
    return !job.isStamped() ||
           (stampOf(job.input) == result.inputStamp &&
               (job.other.isEmpty() || stampOf(job.other) == result.otherStamp));
}

void Worker::answer(const Job& job, Result& result)
{
    const auto refuse = [&result](const char* id, const Error& error) {
        result.fail(id, error.text);
        if (error.cancelled)
            result.status = Result::Status::Cancelled;
    };
    // Files are mapped into memory, which counts towards the limit.
    const qint64 limit = m_arguments.number("memory-limit", 0);
    if (limit > 0 && QFileInfo(job.input).size() >= limit * 1024 * 1024)
        return result.fail(
            errorid::kMemory, Texts::tr("处理它所需的内存超过了 %1 MB，已放弃。").arg(limit));
    const auto opened = openDrawing(job.input, m_arguments, m_progress);
    if (!opened)
        return refuse(errorid::kDrawing, opened.error());
    Drawing& drawing = **opened;
    drawing::DrawingStep step(drawing, m_arguments.verb);
    if (const auto done = m_verb->run(drawing, job, result); !done)
        return refuse(errorid::kRefused, done.error());
    step.commit();
    result.changed = drawing.canUndo();
    result.notes("opening", drawing.openingNotices());
    result.notes("drawing", drawing.takeNotices());
    // An unchanged drawing is not written in place; in an output folder every drawing is written.
    const bool writes = !job.output.isEmpty() && (result.changed || job.output != job.input);
    const auto refuseChanged = [&result] {
        forgetChanges(result);
        result.fail(errorid::kChanged, Texts::tr("图形在处理期间被改动，请重做。"));
    };
    if (!isAsRead(job, result))
        return refuseChanged();
    if (!writes) {
        result.output.clear();
    } else if (const auto written = write(drawing, job, result); !written) {
        if (!isAsRead(job, result))
            return refuseChanged();
        forgetChanges(result);
        return refuse(errorid::kWrite, written.error());
    }
    result.status = Result::Status::Done;
}

/// Writes all files to the staging folder. The drawing comes last, so that a drawing that is in
/// place always has its accompanying files.
Expected<void> Worker::write(Drawing& drawing, const Job& job, Result& result)
{
    if (job.keepsBackup) {
        if (auto kept = keepBackup(job.input); !kept)
            return kept;
    }
    auto done = m_verb->write(drawing, job, m_progress, result);
    if (done && !result.staged.empty() && !isAsRead(job, result))
        done = tl::make_unexpected(Error{Texts::tr("图形在处理期间被改动，请重做。")});
    for (const StagedFile& file : result.staged) {
        if (done && QFile::exists(file.from)) {
            QDir().mkpath(QFileInfo(file.to).path());
            const FileStamp stamp = stampOf(file.from);
            done = moveInto(file);
            result.written.push_back({file.to, stamp});
        }
        QFile::remove(file.from);
    }
    return done;
}

} // namespace

QByteArray workerOrder(const Arguments& arguments, int drawings)
{
    QJsonObject order = arguments.toJson();
    order.insert(QLatin1String(kDrawings), drawings);
    return lineOf(order);
}

int runWorker()
{
    // A killed run must not replace files after the next run has started.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    QFile in;
    QFile out;
    if (!in.open(stdin, QIODevice::ReadOnly) || !out.open(stdout, QIODevice::WriteOnly))
        return 1;
    const QJsonObject order = QJsonDocument::fromJson(in.readLine()).object();
    const Arguments arguments = Arguments::fromJson(order);
    useLanguage(arguments.value("language"));
    limitMemory(arguments.number("memory-limit", 0));
    const VerbRow* const row = findVerb(arguments.verb);
    if (!row)
        return 1;
    Worker worker(arguments, *row, order.value(QLatin1String(kDrawings)).toInt());
    if (const auto ready = worker.prepare(); !ready) {
        complainOf(ready.error().text);
        return 1;
    }
    const Interruption interruption(&worker.progress().cancelled);
    while (!worker.progress().cancelled) {
        const QByteArray line = in.readLine();
        if (line.isEmpty())
            break;
        const Result result = worker.run(Job::fromLine(line));
        QJsonObject answer = result.toJson();
        answer.insert(QLatin1String(kPrintedSize), result.printed->size());
        out.write(lineOf(answer) + *result.printed);
        out.flush();
    }
    return 0;
}

} // namespace layertool
