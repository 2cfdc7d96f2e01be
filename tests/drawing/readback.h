#pragma once

#include "layer.h"

#include <QJsonArray>
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
inline QJsonObject seen(
    const QString& path, const QString& script = QStringLiteral(READBACK_SCRIPT))
{
    QProcess reader;
    reader.start(QStringLiteral("/usr/bin/python3"), {script, path});
    if (!reader.waitForFinished(120000) || reader.exitCode() != 0)
        return {{QStringLiteral("failure"), QString::fromUtf8(reader.readAllStandardError())}};
    return QJsonDocument::fromJson(reader.readAllStandardOutput()).object();
}

/// A layer as `seen` gives it.
inline QJsonObject facts(const drawing::LayerProperties& p)
{
    return {{"name", p.name}, {"off", p.off}, {"frozen", p.frozen}, {"locked", p.locked},
        {"newViewportFrozen", p.frozenInNewViewports}, {"plotted", p.plotted},
        {"color", p.colorIndex}, {"trueColor", p.trueColor ? int(*p.trueColor) : -1},
        {"linetype", p.linetype}, {"lineweight", p.lineweight}, {"transparency", p.transparency},
        {"description", p.description}};
}

/// The layers seen, by name.
inline QHash<QString, QJsonObject> layers(const QJsonObject& seen)
{
    QHash<QString, QJsonObject> layers;
    for (const QJsonValue& value : seen.value(QLatin1String("layers")).toArray())
        layers.insert(value.toObject().value("name").toString(), value.toObject());
    return layers;
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
