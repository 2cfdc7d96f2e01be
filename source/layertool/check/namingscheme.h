#pragma once

#include "file/error.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <vector>

namespace layertool {

/// One field of a layer name.
struct NameField
{
    QString name;
    int least = 1;              ///< Characters.
    int most = 0;               ///< 0 for no limit.
    QStringList values;         ///< Empty: any.
    QRegularExpression pattern; ///< Empty: any.
    bool isOptional = false;
    QString before; ///< What separates it from the field in front, where that differs.
};

/// How layer names are made of fields: with a separator between them, or each of its own width.
class NamingScheme
{
public:
    /// Reads the "naming" object of a rule file. Refuses what makes no sense, naming it.
    static drawing::Expected<NamingScheme> read(const QJsonObject& json);

    /// Why a name does not follow the scheme, a sentence; empty when it does.
    QString fault(const QString& name) const;

private:
    QString faultOfField(const NameField& field, const QString& text) const;
    QString faultOfSeparated(const QString& name) const;
    QString faultOfFixed(const QString& name) const;

    QString m_separator;
    bool m_isUpper = false;
    int m_mostCharacters = 255;
    std::vector<NameField> m_fields;
};

} // namespace layertool
