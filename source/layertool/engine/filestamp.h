#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace layertool {

/// What a file was when it was read: enough to tell later that it is the same. The hash is XXH3 of
/// 128 bits over the contents, in hexadecimal.
struct FileStamp
{
    qint64 size = -1;
    qint64 modified = 0; ///< Milliseconds since 1970, UTC.
    QByteArray hash;

    bool isNull() const { return size < 0; }
};

bool operator==(const FileStamp& a, const FileStamp& b);

/// Null for a file that cannot be read.
FileStamp stampOf(const QString& path);
QJsonObject stampJson(const FileStamp& stamp);
FileStamp stampFrom(const QJsonObject& json);

/// The hash of some bytes, as stamps have it.
QByteArray hashOf(const QByteArray& bytes);

} // namespace layertool
