#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

/// What an independent reader sees of drawings.
namespace readback {

inline bool isInstalled()
{
    QProcess python;
    python.start(
        QStringLiteral("/usr/bin/python3"), {QStringLiteral("-c"), QStringLiteral("import ezdxf")});
    return python.waitForFinished() && python.exitCode() == 0;
}

/// Layers, entities and audit errors; "failure" when the file cannot be read.
inline QJsonObject seen(const QString& path)
{
    QProcess reader;
    reader.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(READBACK_SCRIPT), path});
    if (!reader.waitForFinished(120000) || reader.exitCode() != 0)
        return {{QStringLiteral("failure"), QString::fromUtf8(reader.readAllStandardError())}};
    return QJsonDocument::fromJson(reader.readAllStandardOutput()).object();
}

/// The audit errors that `after` has more of than `before`.
inline QStringList newErrors(const QJsonObject& before, const QJsonObject& after)
{
    QStringList codes;
    const QJsonObject old = before.value(QLatin1String("errors")).toObject();
    const QJsonObject now = after.value(QLatin1String("errors")).toObject();
    for (const QString& code : now.keys()) {
        if (now.value(code).toInt() > old.value(code).toInt())
            codes += code;
    }
    return codes;
}

} // namespace readback
