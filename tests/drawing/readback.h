#pragma once

#include "layers/layer.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

/// The contents of drawings as an independent reader sees them.
namespace readback {

inline bool isInstalled()
{
    static const bool isThere = QProcess::execute("/usr/bin/python3", {"-c", "import ezdxf"}) == 0;
    return isThere;
}

/// The process of the reader. It is started only once because that takes longer than reading most
/// drawings.
class Reader : public QObject
{
public:
    static Reader& instance()
    {
        static auto* const reader = new Reader;
        return *reader;
    }
    ~Reader() override
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    QByteArray answer(const QString& line)
    {
        m_process.write(line.toUtf8() + '\n');
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(120000))
                return {};
        }
        return m_process.readLine();
    }

private:
    Reader() : QObject(QCoreApplication::instance())
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start("/usr/bin/python3", {READBACK_SCRIPT});
    }

    QProcess m_process;
};

/// Reads a file with the independent reader. `what` selects "layers" (with "entities"), "states"
/// (with what viewports show) or "entities" by layers. The result always contains audit errors, or
/// "failure" when the file cannot be read.
inline QJsonObject seen(const QString& path, const QString& what = "layers")
{
    const QByteArray answer = Reader::instance().answer(what + ' ' + path);
    return QJsonDocument::fromJson(answer.isEmpty() ? R"({"failure":"no answer"})" : answer)
        .object();
}

/// Reads a file that no test changes. The result is cached because reading takes time.
inline QJsonObject original(const QString& path)
{
    static QHash<QString, QJsonObject> known;
    if (!known.contains(path))
        known.insert(path, seen(path));
    return known.value(path);
}

/// The properties of a layer in the form that `seen` returns.
inline QJsonObject facts(const drawing::LayerProperties& p)
{
    return {{"name", p.name}, {"off", p.off}, {"frozen", p.frozen}, {"locked", p.locked},
        {"newViewportFrozen", p.frozenInNewViewports}, {"plotted", p.plotted},
        {"color", p.colorIndex}, {"trueColor", p.trueColor ? int(*p.trueColor) : -1},
        {"linetype", p.linetype}, {"lineweight", p.lineweight}, {"transparency", p.transparency},
        {"description", p.description}};
}

/// The layers in a result of `seen` by their names.
inline QHash<QString, QJsonObject> layers(const QJsonObject& seen)
{
    QHash<QString, QJsonObject> layers;
    for (const QJsonValue value : seen.value("layers").toArray())
        layers.insert(value.toObject().value("name").toString(), value.toObject());
    return layers;
}

/// The audit errors of `after` that `before` does not have, or why `after` cannot be read.
inline QStringList newErrors(const QJsonObject& before, const QJsonObject& after)
{
    if (after.contains("failure"))
        return {after.value("failure").toString()};
    QStringList codes;
    const QJsonObject old = before.value("errors").toObject();
    const QJsonObject now = after.value("errors").toObject();
    for (const QString& code : now.keys()) {
        if (now.value(code).toInt() > old.value(code).toInt())
            codes += code;
    }
    return codes;
}

} // namespace readback
