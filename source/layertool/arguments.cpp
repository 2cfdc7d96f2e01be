#include "arguments.h"

#include <QJsonArray>

namespace layertool {

QString Arguments::value(const char* option, const QString& fallback) const
{
    const QStringList given = values(option);
    return given.isEmpty() ? fallback : given.back();
}

int Arguments::number(const char* option, int fallback) const
{
    return isSet(option) ? value(option).toInt() : fallback;
}

QJsonObject Arguments::toJson() const
{
    QJsonObject options;
    for (auto it = m_values.begin(); it != m_values.end(); ++it)
        options.insert(it.key(), QJsonArray::fromStringList(it.value()));
    return {{QStringLiteral("verb"), verb}, {QStringLiteral("action"), action},
        {QStringLiteral("options"), options}};
}

Arguments Arguments::fromJson(const QJsonObject& json)
{
    Arguments arguments;
    arguments.verb = json.value(QLatin1String("verb")).toString();
    arguments.action = json.value(QLatin1String("action")).toString();
    const QJsonObject options = json.value(QLatin1String("options")).toObject();
    for (auto it = options.begin(); it != options.end(); ++it) {
        QStringList values;
        for (const QJsonValue value : it.value().toArray())
            values += value.toString();
        arguments.set(it.key(), values);
    }
    return arguments;
}

} // namespace layertool
