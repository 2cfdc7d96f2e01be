#include "layerfilters.h"

#include <QRegularExpression>
#include <QStringList>

namespace drawing {

namespace {

constexpr QLatin1Char kEscape('`');

/// A pattern that matches exactly this name.
QString escaped(const QString& name)
{
    QString pattern;
    for (const QChar c : name) {
        if (QStringLiteral("#@.[]~").contains(c))
            pattern += kEscape;
        pattern += c;
    }
    return pattern;
}

} // namespace

QString followedPattern(const QString& pattern, const LayerReplacements& replacements)
{
    // Names contain neither commas nor escape characters.
    QStringList parts = pattern.split(QLatin1Char(','));
    for (QString& part : parts) {
        const QString name = replacements.currentName(QString(part).remove(kEscape));
        if (!name.isEmpty())
            part = escaped(name);
    }
    return parts.join(QLatin1Char(','));
}

QString followedExpression(const QString& expression, const LayerReplacements& replacements)
{
    static const QRegularExpression term(
        QStringLiteral("\\bNAME\\s*==\\s*\"([^\"]*)\""), QRegularExpression::CaseInsensitiveOption);
    QString followed;
    int from = 0;
    auto terms = term.globalMatch(expression);
    while (terms.hasNext()) {
        const QRegularExpressionMatch match = terms.next();
        followed += expression.midRef(from, match.capturedStart(1) - from);
        followed += followedPattern(match.captured(1), replacements);
        from = match.capturedEnd(1);
    }
    return followed + expression.midRef(from);
}

} // namespace drawing
