#include "filefilters.h"

#include "hosttexts.h"

#include <QRegularExpression>

#include <algorithm>

namespace host {

namespace {

QString withPatterns(const QString& entry)
{
    if (entry.contains(QLatin1Char('*')) || entry.contains(QLatin1Char('(')))
        return entry;
    QStringList patterns;
    for (const QString& extension : entry.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        patterns.append(QStringLiteral("*.") + extension);
    return patterns.join(QLatin1Char(' '));
}

} // namespace

QStringList splitFilters(const QString& filter)
{
    static const QRegularExpression separator(QStringLiteral(";;|\\||[\\r\\n]+|(?<=\\))"));
    QStringList entries;
    for (const QString& part : filter.split(separator)) {
        // A single ";" between patterns has the same meaning as a blank.
        const QString entry = QString(part).replace(QLatin1Char(';'), QLatin1Char(' ')).trimmed();
        if (!entry.isEmpty())
            entries.append(withPatterns(entry));
    }
    return entries;
}

bool asksForDrawings(const QString& entry)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\*\\.dw[gst]\\b"), QRegularExpression::CaseInsensitiveOption);
    return pattern.match(entry).hasMatch();
}

QStringList withReadableForm(QStringList entries)
{
    if (std::any_of(entries.cbegin(), entries.cend(), asksForDrawings))
        entries.prepend(Texts::tr("DXF 图形 (*.dxf)"));
    return entries;
}

QString firstExtension(const QString& entry)
{
    static const QRegularExpression pattern(QStringLiteral("\\*\\.([^\\s*?;)]+)"));
    return pattern.match(entry).captured(1);
}

} // namespace host
