#include "comparison.h"
#include "hostcodes.h"
#include "hostfrontend.h"
#include "hoststart.h"
#include "rows.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

/// Answers OK and yes to everything, so that no window waits for a user.
class ConsentingFrontEnd : public host::HostFrontEnd
{
public:
    int messageBox(const OdString&, const OdString&, int) override { return vnsi::kVnAnswerYes; }
    int messageBoxEx(
        const OdString&, const OdString&, const vnsi::VnJsonPtr&, int, int, int) override
    {
        return vnsi::kVnAnswerOk;
    }
};

/// Removes `--quick` from the arguments because the benchmark library does not know it.
bool takeQuick(int& argc, char** argv)
{
    char** const end = argv + argc;
    char** const kept = std::remove_if(
        argv + 1, end, [](const char* argument) { return std::strcmp(argument, "--quick") == 0; });
    argc = static_cast<int>(kept - argv);
    *kept = nullptr;
    return kept != end;
}

int run(int argc, char** argv, bool quick)
{
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        std::fprintf(stderr, "No temporary folder: %s\n", qPrintable(folder.errorString()));
        return 1;
    }
    bench::Report report;
    report.registerRows(bench::layerTableRows(), quick);
    report.registerRows(bench::memoryRows(), quick);
    report.registerRows(bench::dialogRows(), quick);
    report.registerRows(bench::drawingRows(folder.path()), quick);
    report.registerRows(bench::deleteDialogRows(), quick);
    report.registerRows(bench::translatorRows(), quick);
    report.registerRows(bench::batchRows(folder.path()), quick);
    report.registerRows(bench::walkRows(folder.path()), quick);
    report.registerRows(bench::panelRows(folder.path()), quick);
    report.registerRows(bench::stallRows(folder.path()), quick);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    benchmark::ClearRegisteredBenchmarks(); // They hold windows, which go before the application.
    std::printf("\n%s", report.table().toUtf8().constData());
    return report.hasFailed() ? 1 : 0;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const bool quick = takeQuick(argc, argv);
    const QApplication application(argc, argv);
    // The user's own settings are neither read nor written.
    QStandardPaths::setTestModeEnabled(true);
    host::Host host;
    const QString module = QApplication::applicationDirPath() + QStringLiteral("/" MODULE_FILE);
    if (const QString failure = host.loadModule(module); !failure.isEmpty()) {
        std::fprintf(stderr, "%s\n", failure.toUtf8().constData());
        return 1;
    }
    ConsentingFrontEnd frontEnd;
    host::setHostFrontEnd(&frontEnd);
    const int result = run(argc, argv, quick);
    host::setHostFrontEnd(nullptr);
    return result;
}
