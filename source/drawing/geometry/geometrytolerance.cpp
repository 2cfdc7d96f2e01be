#include "geometrytolerance.h"

#include <QRegularExpression>

namespace drawing {

namespace {

/// The symbols for the letters of the symbol font, beginning with 'a'.
constexpr char16_t kSigns[] = u"∠⟂⏥⌓○∥⌭↗⌯⌖⌒ⓁⓂ⌀□Ⓟ⌲◎Ⓢ⌰—";

QString signOf(QChar letter)
{
    const int at = letter.toLower().unicode() - 'a';
    const int count = static_cast<int>(std::size(kSigns)) - 1;
    return at >= 0 && at < count ? QString(QChar(kSigns[at])) : QString(letter);
}

QString withSigns(QString text)
{
    static const QRegularExpression symbol(
        QStringLiteral("\\{\\\\F[^;}]*;(.)\\}"), QRegularExpression::CaseInsensitiveOption);
    for (auto match = symbol.match(text); match.hasMatch(); match = symbol.match(text))
        text.replace(
            match.capturedStart(), match.capturedLength(), signOf(match.captured(1).front()));
    return text;
}

} // namespace

std::vector<QStringList> toleranceCells(const QString& text)
{
    std::vector<QStringList> rows;
    for (const QString& row : withSigns(text).split(QLatin1Char('\n'))) {
        QStringList cells =
            row.split(QStringLiteral("%%v"), Qt::KeepEmptyParts, Qt::CaseInsensitive);
        while (!cells.isEmpty() && cells.last().trimmed().isEmpty())
            cells.removeLast();
        if (!cells.isEmpty())
            rows.push_back(cells);
    }
    return rows;
}

} // namespace drawing
