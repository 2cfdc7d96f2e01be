#pragma once

#include <QJsonObject>
#include <QMap>
#include <QStringList>

namespace layertool {

/// The parsed command line as texts: options by their names, and the operands after the verb.
class Arguments
{
public:
    bool isSet(const char* option) const { return m_values.contains(QLatin1String(option)); }
    /// The option's value; the last one when it was given several times.
    QString value(const char* option, const QString& fallback = {}) const;
    QStringList values(const char* option) const { return m_values.value(QLatin1String(option)); }
    /// The option's number; `fallback` when it was not given. It was validated during parsing.
    int number(const char* option, int fallback) const;
    void set(const QString& option, const QStringList& values) { m_values.insert(option, values); }

    QString verb;
    QString action;    ///< The action, for verbs that have several.
    QStringList paths; ///< Drawings and folders as they were given.

    QJsonObject toJson() const;
    static Arguments fromJson(const QJsonObject& json);

private:
    QMap<QString, QStringList> m_values;
};

} // namespace layertool
