#include "fingerprint.h"

#include "check/rulefile.h"
#include "texts.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace layertool {

drawing::Expected<QByteArray> runFingerprint(
    const Arguments& arguments, const std::vector<OptionRow>& options)
{
    QJsonArray parts{QCoreApplication::applicationVersion(), arguments.verb, arguments.action};
    for (const OptionRow& row : options) {
        if (!row.shapesResult || !arguments.isSet(row.name))
            continue;
        QJsonArray values = QJsonArray::fromStringList(arguments.values(row.name));
        const bool isFile = row.kind == OptionKind::File;
        for (const QString& path : isFile ? arguments.values(row.name) : QStringList()) {
            const FileStamp stamp = stampOf(path);
            if (stamp.isNull())
                return tl::make_unexpected(
                    drawing::Error{Texts::tr("无法读取 --%1 所指的文件“%2”。")
                                       .arg(QLatin1String(row.name), path)});
            values.append(QString::fromLatin1(stamp.hash));
            for (const QString& behind : rulesBehind(path))
                values.append(QString::fromLatin1(stampOf(behind).hash));
        }
        parts.append(QLatin1String(row.name));
        parts.append(values);
    }
    return hashOf(QJsonDocument(parts).toJson(QJsonDocument::Compact));
}

} // namespace layertool
