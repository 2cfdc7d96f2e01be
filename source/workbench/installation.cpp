#include "installation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace installation {

namespace {

constexpr char kModuleFile[] = "libcmdlayerui.so";

QString besideProgram(const QString& path)
{
    return QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).filePath(path));
}

QDir samples()
{
    return QDir(besideProgram(QLatin1String(LAYERBENCH_DATA_FOLDER "/samples")));
}

} // namespace

QString modulePath(const QString& named)
{
    if (!named.isEmpty())
        return named;
    if (QString asked = qEnvironmentVariable("LAYERBENCH_MODULE"); !asked.isEmpty())
        return asked;
    const QString file = QLatin1String(kModuleFile);
    const QString installed =
        besideProgram(QLatin1String(LAYERBENCH_MODULE_FOLDER) + QLatin1Char('/') + file);
    return QFileInfo::exists(installed) ? installed : besideProgram(file);
}

QString sampleDrawing()
{
    const QStringList found =
        samples().entryList({QStringLiteral("*.dxf")}, QDir::Files, QDir::Name);
    return found.isEmpty() ? QString() : samples().filePath(found.first());
}

QString sampleStandard()
{
    return samples().filePath(QStringLiteral("office-standard.dxf"));
}

} // namespace installation
