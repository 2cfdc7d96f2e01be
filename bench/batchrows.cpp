#include "drawingfile.h"
#include "rows.h"
#include "standardsfile.h"
#include "stopwatch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

namespace bench {

namespace {

constexpr int kDrawings = 200;
constexpr int kKilobytes = 100;
constexpr int kMappings = 50;

/// The same layer move: layouts and blocks, the emptied layers removed.
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

struct Batch
{
    QString standard;
    QStringList drawings;
    QString folder;
};

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
    QDir(folder).mkpath(QStringLiteral("many"));
    const QString first = folder + QStringLiteral("/many/0.dxf");
    bool isWritten = QFile::exists(first) || writeSmallDrawing(first, kKilobytes);
    for (int number = 0; number < kDrawings; ++number) {
        const QString path = folder + QStringLiteral("/many/%1.dxf").arg(number);
        isWritten = isWritten && (QFile::exists(path) || QFile::copy(first, path));
        batch.drawings += path;
    }
    if (!isWritten)
        return tl::make_unexpected(
            QStringLiteral("no drawings could be written in %1").arg(folder));
    return batch;
}

/// Seconds of a whole process; 0 when it failed.
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

double translateSeconds(const Batch& batch)
{
    const QString out = emptied(batch.folder + QStringLiteral("/translated"));
    return processSeconds(QCoreApplication::applicationDirPath() + QStringLiteral("/layertool"),
        QStringList{QStringLiteral("translate"), QStringLiteral("--quiet"),
            QStringLiteral("--root"), batch.folder, QStringLiteral("--standard"), batch.standard, QStringLiteral("--option"),
            QStringLiteral("blocks"), QStringLiteral("--out"), out} +
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
    const Batch given = *batch;
    return Sides{[given] { return translateSeconds(given); },
        [given] { return scriptSeconds(given); },
        QStringLiteral("one python3-ezdxf script doing the same")};
}

} // namespace

std::vector<Row> batchRows(const QString& folder)
{
    return {{"batch/ezdxf", QStringLiteral("translate %1 drawings of 0.1 MB").arg(kDrawings),
        Measure::Wall, {}, 3, 1, [folder] { return batchAgainstScript(folder); }}};
}

} // namespace bench
