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
    int least = 1;              ///< The minimum number of characters.
    int most = 0;               ///< The maximum number of characters; 0 for no limit.
    QStringList values;         ///< The allowed values; empty for any.
    QRegularExpression pattern; ///< The pattern of allowed values; empty for any.
    bool isOptional = false;
    QString before; ///< The separator before this field, if it differs from the scheme's.
};

/// How layer names are composed of fields, which are either separated or have fixed widths.
class NamingScheme
{
public:
    /// Reads the "naming" object of a rule file. Refuses invalid contents and names them.
    static drawing::Expected<NamingScheme> read(const QJsonObject& json);

    /// A sentence that says why a name does not follow the scheme; empty when it does.
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
