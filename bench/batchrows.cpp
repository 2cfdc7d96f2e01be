#include "drawingfile.h"
#include "rows.h"
#include "standardsfile.h"
#include "stopwatch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>

namespace bench {

namespace {

constexpr int kDrawings = 200;
constexpr int kKilobytes = 100;
constexpr int kReadKilobytes = 1000; ///< The size of drawings that are only read.
constexpr int kMappings = 50;

/// A script of another program that moves the same layers in layouts and blocks and removes the
/// emptied ones.
constexpr char kScript[] = R"(
import pathlib, sys, ezdxf
out = pathlib.Path(sys.argv[1])
targets = {f"layer-{i}": f"S-{i}" for i in range(1, int(sys.argv[2]) + 1)}
for path in map(pathlib.Path, sys.argv[3:]):
    doc = ezdxf.readfile(path)
    for name in targets.values():
        doc.layers.add(name, color=3)
    for entity in doc.entitydb.values():
        if entity.dxf.hasattr("layer"):
            entity.dxf.layer = targets.get(entity.dxf.layer.lower(), entity.dxf.layer)
    for name in targets:
        doc.layers.remove(name)
    doc.saveas(out / path.name)
)";

/// Rules as an office checks them; the drawings break none of them.
constexpr char kRules[] = R"({"naming": {"separator": "-", "fields": [
    {"name": "word", "values": ["LAYER", "0"]},
    {"name": "number", "pattern": "[0-9]+", "optional": true}]},
    "allowed": ["LAYER-*"],
    "rules": {"entity-on-0": "off", "block-content": "off", "layer-unused": "off"}})";

struct Batch
{
    QString standard;
    QStringList drawings;
    QString folder;
};

/// Writes several copies of the same drawing.
tl::expected<QStringList, QString> drawingsIn(const QString& folder, int kilobytes)
{
    QDir().mkpath(folder);
    QStringList drawings;
    for (int number = 0; number < kDrawings; ++number)
        drawings += QStringLiteral("%1/%2.dxf").arg(folder).arg(number);
    bool isWritten =
        QFile::exists(drawings.front()) || writeSmallDrawing(drawings.front(), kilobytes);
    for (const QString& path : drawings)
        isWritten = isWritten && (QFile::exists(path) || QFile::copy(drawings.front(), path));
    if (isWritten)
        return drawings;
    return tl::make_unexpected(QStringLiteral("no drawings could be written in %1").arg(folder));
}

tl::expected<Batch, QString> batchIn(const QString& folder)
{
    Batch batch{folder + QStringLiteral("/standard.dxf"), {}, folder};
    std::vector<drawing::LayerMapping> mappings;
    for (int number = 1; number <= kMappings; ++number) {
        drawing::TargetLayer target;
        target.name = QStringLiteral("S-%1").arg(number);
        target.colorIndex = 3;
        mappings.push_back({QStringLiteral("LAYER-%1").arg(number), target});
    }
    if (const auto saved = drawing::saveStandard(batch.standard, mappings); !saved)
        return tl::make_unexpected(saved.error().text);
    auto drawings = drawingsIn(folder + QStringLiteral("/many"), kKilobytes);
    if (!drawings)
        return tl::make_unexpected(drawings.error());
    batch.drawings = std::move(*drawings);
    return batch;
}

/// The seconds that a whole process takes; 0 when it failed.
double processSeconds(const QString& program, const QStringList& arguments)
{
    bool isDone = false;
    const double seconds = timed(Clock::Wall, [&] {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(program, arguments);
        isDone = process.waitForFinished(-1) && process.exitCode() == 0;
    });
    return isDone ? seconds : 0;
}

QString emptied(const QString& path)
{
    QDir(path).removeRecursively();
    QDir().mkpath(path);
    return path;
}

QString toolPath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/layertool");
}

double translateSeconds(const Batch& batch)
{
    const QString out = emptied(batch.folder + QStringLiteral("/translated"));
    return processSeconds(toolPath(),
        QStringList{QStringLiteral("translate"), QStringLiteral("--quiet"),
            QStringLiteral("--root"), batch.folder, QStringLiteral("--standard"), batch.standard,
            QStringLiteral("--option"), QStringLiteral("blocks"), QStringLiteral("--out"), out} +
            batch.drawings);
}

double scriptSeconds(const Batch& batch)
{
    const QString out = emptied(batch.folder + QStringLiteral("/scripted"));
    return processSeconds(QStringLiteral("/usr/bin/python3"),
        QStringList{
            QStringLiteral("-c"), QString::fromLatin1(kScript), out, QString::number(kMappings)} +
            batch.drawings);
}

tl::expected<Sides, QString> batchAgainstScript(const QString& folder)
{
    const auto batch = batchIn(folder);
    if (!batch)
        return tl::make_unexpected(batch.error());
    if (translateSeconds(*batch) <= 0)
        return tl::make_unexpected(QStringLiteral("the batch program failed"));
    return Sides{[given = *batch] { return translateSeconds(given); },
        [given = *batch] { return scriptSeconds(given); },
        QStringLiteral("one python3-ezdxf script doing the same")};
}

/// Compares a verb that only reads with counting the drawings' lines in as many processes.
tl::expected<Sides, QString> readingAgainstCounting(const QString& folder, const QStringList& verb)
{
    const auto drawings = drawingsIn(folder + QStringLiteral("/read"), kReadKilobytes);
    if (!drawings)
        return tl::make_unexpected(drawings.error());
    QFile rules(folder + QStringLiteral("/rules.json"));
    if (!rules.open(QIODevice::WriteOnly) || rules.write(kRules) < 0)
        return tl::make_unexpected(rules.errorString());
    rules.close();
    const QString processes = QString::number(QThread::idealThreadCount());
    const QStringList reading =
        verb + QStringList{QStringLiteral("--quiet"), QStringLiteral("--jobs"), processes} +
        *drawings;
    const QStringList counting = QStringList{QStringLiteral("-c"),
                                     QStringLiteral("printf '%s\\0' \"$@\" | xargs -0 -n 50 -P ") +
                                         processes + QStringLiteral(" wc -l"),
                                     QStringLiteral("sh")} +
                                 *drawings;
    const auto read = [reading] { return processSeconds(toolPath(), reading); };
    if (read() <= 0)
        return tl::make_unexpected(QStringLiteral("the batch program failed"));
    return Sides{read, [counting] { return processSeconds(QStringLiteral("/bin/sh"), counting); },
        QStringLiteral("wc -l over them, %1 processes each").arg(processes)};
}

} // namespace

std::vector<Row> batchRows(const QString& folder)
{
    const Budget twice{Budget::Kind::AtMostTimes, 2};
    const QStringList check{QStringLiteral("check"), QStringLiteral("--standard"),
        folder + QStringLiteral("/rules.json")};
    return {{"batch/ezdxf", QStringLiteral("translate %1 drawings of 0.1 MB").arg(kDrawings),
                Measure::Wall, {}, 3, 1, [folder] { return batchAgainstScript(folder); }},
        {"batch/list", QStringLiteral("list %1 drawings of 1 MB").arg(kDrawings), Measure::Wall,
            twice, 5, 3,
            [folder] { return readingAgainstCounting(folder, {QStringLiteral("list")}); }},
        {"batch/check", QStringLiteral("check %1 drawings of 1 MB").arg(kDrawings), Measure::Wall,
            twice, 5, 3, [folder, check] { return readingAgainstCounting(folder, check); }}};
}

} // namespace bench
