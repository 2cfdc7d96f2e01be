#pragma once

#include <QJsonObject>
#include <QMap>
#include <QStringList>

namespace layertool {

/// What the command line said, as texts: its options by name, and the names behind the verb.
class Arguments
{
public:
    bool isSet(const char* option) const { return m_values.contains(QLatin1String(option)); }
    /// The value given last.
    QString value(const char* option, const QString& fallback = {}) const;
    QStringList values(const char* option) const { return m_values.value(QLatin1String(option)); }
    /// The number; `fallback` where the option was not given. It was checked when it was read.
    int number(const char* option, int fallback) const;
    void set(const QString& option, const QStringList& values) { m_values.insert(option, values); }

    QString verb;
    QString action;    ///< What the verb is to do, of those that do several things.
    QStringList paths; ///< Drawings and folders, as given.

    QJsonObject toJson() const;
    static Arguments fromJson(const QJsonObject& json);

private:
    QMap<QString, QStringList> m_values;
};

} // namespace layertool
