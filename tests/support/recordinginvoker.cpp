#include "recordinginvoker.h"

#include "recordinghost.h"
#include "trees.h"

#include <QJsonDocument>

RecordingInvoker::Ptr RecordingInvoker::create(
    RecordingHost& host, const QStringList& keys, Answer answer)
{
    return Ptr(new OdRxObjectImpl<RecordingInvoker>(host, keys, std::move(answer)), kOdRxObjAttach);
}

RecordingInvoker::RecordingInvoker(RecordingHost& host, QStringList keys, Answer answer)
    : m_host(host),
      m_keys(std::move(keys)),
      m_answer(std::move(answer))
{
}

void RecordingInvoker::invoke(vnsi::VnJsonPtr tree)
{
    const QJsonObject all = toJsonObject(tree);
    QJsonObject noted = m_keys.isEmpty() ? all : QJsonObject();
    for (const QString& key : m_keys) {
        if (all.contains(key))
            noted.insert(key, all.value(key));
    }
    const QByteArray json = QJsonDocument(noted).toJson(QJsonDocument::Compact);
    m_host.note(QStringLiteral("request|%1|%2|%3")
                    .arg(tree->GetDataI(m_markerKey.c_str(), -1))
                    .arg(tree->GetDataI("parameter", -1))
                    .arg(QString::fromUtf8(json)));
    if (m_answer)
        m_answer(tree);
}
