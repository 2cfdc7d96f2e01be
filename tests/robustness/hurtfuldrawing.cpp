#include "hurtfuldrawings.h"

#include "drawing.h"
#include "geometry/geometry.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>
#include <sys/resource.h>

using namespace drawing;

namespace {

const HurtfulDrawing* find(const char* name)
{
    const HurtfulDrawing* row = kHurtfulDrawings;
    while (row->name && std::strcmp(row->name, name) != 0)
        ++row;
    return row->name ? row : nullptr;
}

/// The peak memory of the program without the pages of the drawing's file, which the system can
/// reclaim at any time.
long peakMegabytes(qint64 fileSize)
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024 - static_cast<long>(fileSize >> 20);
}

QString shown(const QString& path)
{
    const auto drawing = Drawing::open(path);
    if (!drawing)
        return QStringLiteral("refused: ") + drawing.error().text.left(300);
    const auto geometry = buildGeometry(**drawing);
    return QStringLiteral("shown: %1 layers, %2 groups%3")
        .arg((*drawing)->layers().size())
        .arg(geometry ? geometry->groups.size() : 0)
        .arg(geometry && geometry->truncated ? QStringLiteral(", truncated") : QString());
}

} // namespace

/// hurtfuldrawing NAME [SIZE]: writes the drawing of that name, by default at its full size, opens
/// it, and prints the outcome, the time and the memory.
int main(int count, char** arguments)
{
    const HurtfulDrawing* const row = count > 1 ? find(arguments[1]) : nullptr;
    if (!row) {
        for (const HurtfulDrawing* each = kHurtfulDrawings; each->name; ++each)
            std::printf("%s %lld\n", each->name, static_cast<long long>(each->full));
        return 2;
    }
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("hurtful.dxf")));
    if (!file.open(QIODevice::WriteOnly))
        return 3;
    row->write(file, count > 2 ? std::atoll(arguments[2]) : row->full);
    file.close();
    QElapsedTimer clock;
    clock.start();
    const QString result = shown(file.fileName());
    std::printf("%s\n%lld MB file, %.1f s, %ld MB\n", qPrintable(result),
        static_cast<long long>(file.size() >> 20), static_cast<double>(clock.elapsed()) / 1000,
        peakMegabytes(file.size()));
    return 0;
}
