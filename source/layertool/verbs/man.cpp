#include "verbs.h"

#include "commandline.h"
#include "engine/console.h"
#include "engine/run.h"
#include "help.h"
#include "texts.h"

namespace layertool {

namespace {

/// A text as roff takes it: nothing in it is a request, dashes are those one can copy, and lines
/// may end between Chinese characters, where roff would not end them.
QString roff(const QString& text)
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

QString section(const QString& title)
{
    return QStringLiteral(".SH %1\n").arg(roff(title.toUpper()));
}

QString paragraph(const QString& text)
{
    return QStringLiteral(".PP\n%1\n").arg(roff(text));
}

QString optionEntry(const OptionRow& row)
{
    QString text =
        QStringLiteral(".TP\n\\fB%1\\fR").arg(roff(QLatin1String("--") + QLatin1String(row.name)));
    if (const QString value = valueText(row); !value.isEmpty())
        text += QStringLiteral(" \\fI%1\\fR").arg(roff(value));
    return text + QLatin1Char('\n') + roff(Texts::tr(row.text)) + QLatin1Char('\n');
}

QString optionEntries(OptionRows rows)
{
    QString text;
    for (const OptionRow& row : rows)
        text += optionEntry(row);
    return text;
}

QString verbEntry(const VerbRow& verb)
{
    QString text = QStringLiteral(".SS %1\n").arg(roff(QLatin1String(verb.name)));
    text += roff(usageText(verb)) + QLatin1Char('\n') + paragraph(Texts::tr(verb.text));
    if (*verb.formats)
        text += paragraph(Texts::tr("格式：%1。").arg(wordsOf(verb.formats).join(Texts::tr("、"))));
    return text + optionEntries(verb.options);
}

int runMan(const Arguments&)
{
    QString text = QStringLiteral(".TH LAYERTOOL 1 \"\" \"layertool %1\"\n")
                       .arg(QLatin1String(LAYERTOOL_VERSION));
    text += section(Texts::tr("名称")) + QStringLiteral("layertool \\- ") +
            roff(Texts::tr("处理一个或许多 DXF 图形的图层，不需要窗口。")) + QLatin1Char('\n');
    text += section(Texts::tr("用法")) +
            roff(Texts::tr("layertool 命令 [选项...] 图形或文件夹...")) + QLatin1Char('\n');
    text += section(Texts::tr("命令"));
    for (const VerbRow& verb : verbs())
        text += verbEntry(verb);
    text += QStringLiteral(".SS %1\n").arg(QLatin1String(kHelpRow.name)) +
            roff(Texts::tr(kHelpRow.text)) + QLatin1Char('\n');
    text += section(Texts::tr("处理图形的命令都有的选项")) + optionEntries(drawingOptions()) +
            optionEntry(formatOption(""));
    text += section(Texts::tr("改动图形的命令都有的选项")) + optionEntries(editingOptions());
    text += section(Texts::tr("所有命令都有的选项")) + optionEntry(languageOption());
    text += section(Texts::tr("返回值")) + roff(exitCodesText()) + QLatin1Char('\n');
    say(text);
    return kFine;
}

} // namespace

VerbRow manVerb()
{
    VerbRow row{"man", QT_TRANSLATE_NOOP("layertool", "输出手册页 layertool(1)（roff）。"), {}, "",
        false, nullptr};
    row.runAlone = runMan;
    return row;
}

} // namespace layertool
