#include "batch.h"
#include "console.h"
#include "interruption.h"
#include "options.h"
#include "outputnames.h"
#include "report.h"
#include "standardsfile.h"
#include "worker.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTextCodec>
#include <QTranslator>

#include <cstdio>

namespace {

constexpr int kSignalExit = 128; ///< By convention, plus the signal's number.

QString tr(const char* text)
{
    return QCoreApplication::translate("layertrans", text);
}

int fail(int code, const QString& text)
{
    complain(QStringLiteral("layertrans: ") + text);
    return code;
}

int finish(const Outcomes& outcomes, const QString& report)
{
    say({});
    for (const QString& line : totalsTable(outcomes))
        say(line);
    const int code = Totals::of(outcomes).isComplete() ? Fine : SomeFailed;
    if (report.isEmpty())
        return code;
    if (const auto written = writeReport(report, withEarlier(outcomes, report)); !written)
        return fail(SomeFailed, written.error());
    return code;
}

int mergeReports(const Options& options)
{
    std::vector<Outcomes> reports;
    bool isWhole = true;
    for (const QString& path : options.reports) {
        auto report = readReport(path);
        if (report)
            reports.push_back(std::move(*report));
        else
            complain(QStringLiteral("layertrans: ") + report.error());
        isWhole = isWhole && report;
    }
    const int code = finish(merged(reports), options.mergedReport);
    return isWhole ? code : SomeFailed;
}

/// The part of the jobs that is this run's.
std::vector<Job> shardOf(const std::vector<Job>& jobs, const Options& options)
{
    std::vector<Job> part;
    for (size_t i = static_cast<size_t>(options.shard) - 1; i < jobs.size();
         i += static_cast<size_t>(options.shardCount))
        part.push_back(jobs[i]);
    return part;
}

int runBatch(const Options& options)
{
    if (const auto standard = drawing::readStandard(options.standard); !standard)
        return fail(BadUsage, standard.error().text);
    QStringList precious{options.standard};
    if (!options.report.isEmpty())
        precious += options.report;
    const auto plan = planOutputs(options.drawings, options.out, precious);
    if (!plan)
        return fail(BadUsage, plan.error());
    for (const QString& notice : plan->notices)
        complain(QStringLiteral("layertrans: ") + notice);
    if (!QDir().mkpath(options.out))
        return fail(BadUsage, tr("无法新建输出文件夹“%1”。").arg(options.out));
    Batch batch(options);
    const Interruption interruption;
    QObject::connect(&interruption, &Interruption::interrupted, &batch, &Batch::interrupt);
    const int code = finish(batch.run(shardOf(plan->jobs, options)), options.report);
    if (Interruption::signalNumber() == 0)
        return code;
    return fail(kSignalExit + Interruption::signalNumber(),
        tr("已中断：输出文件夹中的图形都是完整的，再次运行会跳过它们。"));
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    // Where no locale is set, as in batch systems, file names are UTF-8 all the same.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication::setApplicationName(QStringLiteral("layertrans"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LAYERTRANS_VERSION));
    QTranslator translator;
    if (translator.load(
            QStringLiteral("qtbase_zh_CN"), QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
    const auto options = parseOptions(QCoreApplication::arguments());
    if (!options) {
        const QByteArray text = options.error().text.toUtf8();
        std::fputs(text.constData(), options.error().code == Fine ? stdout : stderr);
        return options.error().code;
    }
    if (options->isWorker)
        return runWorker(*options);
    return options->mergedReport.isEmpty() ? runBatch(*options) : mergeReports(*options);
}
