#include "filestamp.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace layertool {

namespace {

QByteArray textOf(XXH128_hash_t hash)
{
    XXH128_canonical_t canonical;
    XXH128_canonicalFromHash(&canonical, hash);
    return QByteArray(reinterpret_cast<const char*>(canonical.digest), sizeof canonical.digest)
        .toHex();
}

} // namespace

bool operator==(const FileStamp& a, const FileStamp& b)
{
    return a.size == b.size && a.modified == b.modified && a.hash == b.hash;
}

QByteArray hashOf(const QByteArray& bytes)
{
    return textOf(XXH3_128bits(bytes.constData(), static_cast<size_t>(bytes.size())));
}

FileStamp stampOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    FileStamp stamp;
    stamp.size = file.size();
    stamp.modified = QFileInfo(file).lastModified().toMSecsSinceEpoch();
    if (stamp.size == 0) {
        stamp.hash = hashOf({});
        return stamp;
    }
    if (const uchar* const bytes = file.map(0, stamp.size)) {
        stamp.hash = textOf(XXH3_128bits(bytes, static_cast<size_t>(stamp.size)));
        return stamp;
    }
    // Files that cannot be mapped, such as pipes, are read instead.
    const QByteArray bytes = file.readAll();
    stamp.size = bytes.size();
    stamp.hash = hashOf(bytes);
    return stamp;
}

// Sizes and times are stored as texts because JSON numbers are only exact up to 2^53.
QJsonObject stampJson(const FileStamp& stamp)
{
    return {{QStringLiteral("size"), QString::number(stamp.size)},
        {QStringLiteral("modified"), QString::number(stamp.modified)},
        {QStringLiteral("hash"), QString::fromLatin1(stamp.hash)}};
}

FileStamp stampFrom(const QJsonObject& json)
{
    if (json.isEmpty())
        return {};
    return {json.value(QLatin1String("size")).toString().toLongLong(),
        json.value(QLatin1String("modified")).toString().toLongLong(),
        json.value(QLatin1String("hash")).toString().toLatin1()};
}

} // namespace layertool
