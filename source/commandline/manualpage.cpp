#include "manualpage.h"

#include "textlayout.h"

namespace commandline::manualpage {

QString escaped(const QString& text)
{
    QString all;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isAsked = i == 0 && (c == QLatin1Char('.') || c == QLatin1Char('\''));
        if (isAsked)
            all += QLatin1String("\\&");
        else if (i > 0 && c != QLatin1Char(' ') && text.at(i - 1) != QLatin1Char(' ') &&
                 mayBreak(text.at(i - 1), c))
            all += QLatin1String("\\:");
        if (c == QLatin1Char('\\'))
            all += QLatin1String("\\e");
        else if (c == QLatin1Char('-'))
            all += QLatin1String("\\-");
        else
            all += c;
    }
    return all;
}

QString title(const char* program, const QString& version)
{
    const QString name = QLatin1String(program);
    // Lines of Chinese have no blanks to stretch.
    return QStringLiteral(".TH %1 1 \"\" \"%2 %3\"\n.ad l\n").arg(name.toUpper(), name, version);
}

QString section(const QString& heading)
{
    return QStringLiteral(".SH %1\n").arg(escaped(heading.toUpper()));
}

QString subsection(const QString& heading)
{
    return QStringLiteral(".SS %1\n").arg(escaped(heading));
}

QString line(const QString& text)
{
    return escaped(text) + QLatin1Char('\n');
}

QString paragraph(const QString& text)
{
    return QLatin1String(".PP\n") + line(text);
}

QString option(const OptionText& option)
{
    QString head = QStringLiteral(".TP\n");
    if (option.row.letter)
        head += QStringLiteral("\\fB\\-%1\\fR, ").arg(QLatin1Char(option.row.letter));
    head += QStringLiteral("\\fB%1\\fR").arg(escaped(dashed(option.row)));
    if (!option.value.isEmpty())
        head += QStringLiteral(" \\fI%1\\fR").arg(escaped(option.value));
    return head + QLatin1Char('\n') + line(option.text);
}

} // namespace commandline::manualpage
