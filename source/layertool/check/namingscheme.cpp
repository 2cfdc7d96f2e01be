#include "namingscheme.h"

#include "texts.h"

#include <QJsonArray>

#include <algorithm>

namespace layertool {

namespace {

using drawing::Error;
using drawing::Expected;

tl::unexpected<Error> refuse(const QString& text)
{
    return tl::make_unexpected(Error{text});
}

/// The first unknown key; empty when all keys are known.
QString unknownKey(const QJsonObject& json, const QStringList& known)
{
    for (const QString& key : json.keys()) {
        if (!known.contains(key))
            return key;
    }
    return {};
}

bool readWidth(const QJsonValue& value, NameField& field)
{
    if (value.isUndefined() || value.isNull())
        return true;
    const QJsonArray range = value.toArray();
    field.least = value.isArray() ? range.at(0).toInt(-1) : value.toInt(-1);
    field.most = value.isArray() ? range.at(1).toInt(-1) : field.least;
    return field.least >= 1 && field.most >= field.least && (!value.isArray() || range.size() == 2);
}

/// The values are either a list or the keys of an object, which then explains them.
QStringList valuesOf(const QJsonValue& value)
{
    if (value.isObject())
        return value.toObject().keys();
    QStringList values;
    for (const QJsonValue one : value.toArray())
        values += one.toString();
    return values;
}

Expected<NameField> readField(const QJsonObject& json)
{
    NameField field;
    field.name = json.value(QLatin1String("name")).toString();
    if (field.name.isEmpty())
        return refuse(Texts::tr("naming 的 fields 中有一个字段没有 name。"));
    static const QStringList keys{QStringLiteral("name"), QStringLiteral("width"),
        QStringLiteral("values"), QStringLiteral("pattern"), QStringLiteral("optional"),
        QStringLiteral("before")};
    if (const QString key = unknownKey(json, keys); !key.isEmpty())
        return refuse(Texts::tr("字段“%1”没有名为“%2”的键。").arg(field.name, key));
    if (json.contains(QLatin1String("values")) && json.contains(QLatin1String("pattern")))
        return refuse(Texts::tr("字段“%1”只能有 values 或 pattern 之一。").arg(field.name));
    if (!readWidth(json.value(QLatin1String("width")), field))
        return refuse(
            Texts::tr("字段“%1”的 width 应为一个正整数，或由小到大两个。").arg(field.name));
    field.values = valuesOf(json.value(QLatin1String("values")));
    const QString pattern = json.value(QLatin1String("pattern")).toString();
    if (!pattern.isEmpty()) {
        field.pattern.setPattern(QRegularExpression::anchoredPattern(pattern));
        field.pattern.setPatternOptions(QRegularExpression::UseUnicodePropertiesOption);
    }
    if (!field.pattern.isValid())
        return refuse(Texts::tr("字段“%1”的 pattern 不是正则表达式：%2。")
                          .arg(field.name, field.pattern.errorString()));
    field.isOptional = json.value(QLatin1String("optional")).toBool();
    field.before = json.value(QLatin1String("before")).toString();
    return field;
}

} // namespace

Expected<NamingScheme> NamingScheme::read(const QJsonObject& json)
{
    static const QStringList keys{QStringLiteral("separator"), QStringLiteral("case"),
        QStringLiteral("maxLength"), QStringLiteral("fields")};
    if (const QString key = unknownKey(json, keys); !key.isEmpty())
        return refuse(Texts::tr("naming 没有名为“%1”的键。").arg(key));
    const QString letterCase = json.value(QLatin1String("case")).toString(QStringLiteral("any"));
    if (letterCase != QLatin1String("upper") && letterCase != QLatin1String("any"))
        return refuse(Texts::tr("naming 的 case 应为 upper 或 any，不是“%1”。").arg(letterCase));
    NamingScheme scheme;
    scheme.m_separator = json.value(QLatin1String("separator")).toString();
    scheme.m_isUpper = letterCase == QLatin1String("upper");
    scheme.m_mostCharacters = json.value(QLatin1String("maxLength")).toInt(255);
    for (const QJsonValue value : json.value(QLatin1String("fields")).toArray()) {
        auto field = readField(value.toObject());
        if (!field)
            return tl::make_unexpected(field.error());
        scheme.m_fields.push_back(std::move(*field));
    }
    if (scheme.m_fields.empty())
        return refuse(Texts::tr("naming 没有 fields。"));
    const bool isFixed = scheme.m_separator.isEmpty();
    for (const NameField& field : scheme.m_fields) {
        const bool isLast = &field == &scheme.m_fields.back();
        if (isFixed && field.before.isEmpty() && !isLast && field.least != field.most)
            return refuse(Texts::tr("没有分隔符时，字段“%1”要有固定的 width。").arg(field.name));
    }
    return scheme;
}

QString NamingScheme::faultOfField(const NameField& field, const QString& text) const
{
    if (text.size() < field.least || (field.most > 0 && text.size() > field.most))
        return field.least == field.most
                   ? Texts::tr("字段“%1”应为 %2 个字符，“%3”不是。")
                         .arg(field.name)
                         .arg(field.least)
                         .arg(text)
                   : Texts::tr("字段“%1”的长度不对：“%2”。").arg(field.name, text);
    const auto isText = [&](const QString& value) {
        return value.compare(text, m_isUpper ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0;
    };
    if (!field.values.isEmpty() && std::none_of(field.values.begin(), field.values.end(), isText))
        return Texts::tr("字段“%1”没有“%2”这个值。").arg(field.name, text);
    if (!field.pattern.pattern().isEmpty() && !field.pattern.match(text).hasMatch())
        return Texts::tr("字段“%1”的写法不对：“%2”。").arg(field.name, text);
    return {};
}

/// Matches the fields one after the other. An optional field is skipped when the text does not
/// match it.
QString NamingScheme::faultOfSeparated(const QString& name) const
{
    QString rest = name;
    bool isFirst = true;
    QString passedOver;
    for (size_t i = 0; i < m_fields.size(); ++i) {
        const NameField& field = m_fields[i];
        if (rest.isEmpty() && !isFirst) {
            if (!field.isOptional)
                return Texts::tr("缺少字段“%1”。").arg(field.name);
            continue;
        }
        // The text of a field ends at the next separator of any later field.
        int end = rest.size();
        for (size_t j = i + 1; j < m_fields.size(); ++j) {
            const QString& separator =
                m_fields[j].before.isEmpty() ? m_separator : m_fields[j].before;
            const int at = rest.indexOf(separator);
            if (at >= 0)
                end = std::min(end, at);
            if (!m_fields[j].isOptional)
                break;
        }
        const QString text = rest.left(end);
        QString fault = faultOfField(field, text);
        if (!fault.isEmpty() && field.isOptional) {
            passedOver = fault;
            continue;
        }
        if (!fault.isEmpty())
            return fault;
        isFirst = false;
        rest = rest.mid(end);
        for (size_t j = i + 1; j < m_fields.size() && !rest.isEmpty(); ++j) {
            const QString& separator =
                m_fields[j].before.isEmpty() ? m_separator : m_fields[j].before;
            if (rest.startsWith(separator)) {
                rest = rest.mid(separator.size());
                if (rest.isEmpty())
                    return Texts::tr("名称以分隔符结束。");
                break;
            }
        }
    }
    if (rest.isEmpty())
        return {};
    return passedOver.isEmpty() ? Texts::tr("“%1”是多余的。").arg(rest) : passedOver;
}

QString NamingScheme::faultOfFixed(const QString& name) const
{
    int at = 0;
    for (const NameField& field : m_fields) {
        if (at >= name.size()) {
            if (!field.isOptional)
                return Texts::tr("缺少字段“%1”。").arg(field.name);
            continue;
        }
        const QString text = field.most > 0 ? name.mid(at, field.most) : name.mid(at);
        if (QString fault = faultOfField(field, text); !fault.isEmpty())
            return fault;
        at += text.size();
    }
    return at < name.size() ? Texts::tr("“%1”是多余的。").arg(name.mid(at)) : QString();
}

QString NamingScheme::fault(const QString& name) const
{
    if (name.size() > m_mostCharacters)
        return Texts::tr("名称超过 %1 个字符。").arg(m_mostCharacters);
    if (m_isUpper && name != name.toUpper())
        return Texts::tr("名称应为大写。");
    return m_separator.isEmpty() ? faultOfFixed(name) : faultOfSeparated(name);
}

} // namespace layertool
