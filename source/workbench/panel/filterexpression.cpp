#include "filterexpression.h"

#include <QRegularExpression>

#include <functional>
#include <vector>

namespace filterexpression {

namespace {

constexpr char kTrue[] = "TRUE";
constexpr char kFalse[] = "FALSE";

using drawing::LayerProperties;

template <auto Member>
QString text(const LayerProperties& properties)
{
    return properties.*Member;
}

template <auto Member, bool IsReversed = false>
QString flag(const LayerProperties& properties)
{
    return QLatin1String((properties.*Member) != IsReversed ? kTrue : kFalse);
}

QString color(const LayerProperties& p)
{
    if (!p.trueColor)
        return QString::number(p.colorIndex);
    return layerColorText(p);
}

struct Variable
{
    const char* name;
    QString (*value)(const LayerProperties& properties);
    bool isPattern;
};

// NAME, COLOR and LOCKED occur in existing drawings; the other names are derived from those of the
// properties.
constexpr Variable kVariables[] = {
    {"NAME", text<&LayerProperties::name>, true},
    {"COLOR", color, false},
    {"LINETYPE", text<&LayerProperties::linetype>, true},
    {"LOCKED", flag<&LayerProperties::locked>, false},
    {"FROZEN", flag<&LayerProperties::frozen>, false},
    {"ON", flag<&LayerProperties::off, true>, false},
    {"OFF", flag<&LayerProperties::off>, false},
};

using Test = std::function<bool(const LayerProperties& properties)>;

std::optional<Test> term(const QString& name, const QString& wanted)
{
    for (const Variable& variable : kVariables) {
        if (name.compare(QLatin1String(variable.name), Qt::CaseInsensitive) != 0)
            continue;
        const auto value = variable.value;
        if (!variable.isPattern)
            return [value, wanted](const LayerProperties& properties) {
                return value(properties).compare(wanted, Qt::CaseInsensitive) == 0;
            };
        return [value, fits = wildcardTest(wanted)](
                   const LayerProperties& properties) mutable { return fits(value(properties)); };
    }
    return std::nullopt;
}

} // namespace

std::optional<LayerTest> parsed(const QString& expression)
{
    static const QRegularExpression next(
        QStringLiteral("\\G\\s*(\\()?\\s*(\\w+)\\s*==\\s*\"([^\"]*)\"\\s*(?(1)\\))\\s*(and\\b|$)"),
        QRegularExpression::CaseInsensitiveOption);
    std::vector<Test> terms;
    bool isOpen = true; // Another term is expected.
    for (int at = 0; isOpen;) {
        const QRegularExpressionMatch match = next.match(expression, at);
        if (!match.hasMatch())
            return std::nullopt;
        const auto made = term(match.captured(2), match.captured(3));
        if (!made)
            return std::nullopt;
        terms.push_back(*made);
        at = match.capturedEnd();
        isOpen = match.capturedLength(4) > 0;
    }
    return [terms](const LayerRow& row) {
        for (const Test& test : terms) {
            if (!test(row.properties()))
                return false;
        }
        return true;
    };
}

QString ofNames(const QString& pattern)
{
    return QStringLiteral("( NAME== \"%1\" )").arg(QString(pattern).remove(QLatin1Char('"')));
}

} // namespace filterexpression
