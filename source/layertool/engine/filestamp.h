#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace layertool {

/// Identifies the contents that a file had when it was read, so that a later comparison tells
/// whether it changed. The hash is the 128-bit XXH3 of the contents, in hexadecimal.
struct FileStamp
{
    qint64 size = -1;
    qint64 modified = 0; ///< In milliseconds since 1970, UTC.
    QByteArray hash;

    bool isNull() const { return size < 0; }
};

bool operator==(const FileStamp& a, const FileStamp& b);

/// The stamp of a file; null when the file cannot be read.
FileStamp stampOf(const QString& path);
QJsonObject stampJson(const FileStamp& stamp);
FileStamp stampFrom(const QJsonObject& json);

/// The hash of some bytes, as used in stamps.
QByteArray hashOf(const QByteArray& bytes);

} // namespace layertool
