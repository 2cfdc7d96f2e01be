#include "fuzzing.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace fuzz {

void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

QString scratchFolder()
{
    static const QString memory = QStringLiteral("/dev/shm");
    static const QTemporaryDir folder(
        (QDir(memory).exists() ? memory : QDir::tempPath()) + QStringLiteral("/fuzzXXXXXX"));
    return folder.path();
}

QString writeScratch(const char* name, const QByteArray& bytes)
{
    QString path = scratchFolder() + QLatin1Char('/') + QString::fromLatin1(name);
    // The file is removed instead of emptied, because a previous one may still be open.
    QFile::remove(path);
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
        "the scratch folder can be written to");
    return path;
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString takeText(FuzzedDataProvider& bytes, std::size_t longest)
{
    return QString::fromStdString(bytes.ConsumeRandomLengthString(longest));
}

} // namespace fuzz
