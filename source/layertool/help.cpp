#include "help.h"

#include "commandline.h"
#include "textlayout.h"
#include "texts.h"

namespace layertool {

using commandline::entry;
using commandline::wrappedParagraph;

namespace {

QString verbEntry(const char* name, const char* text)
{
    constexpr int kNameWidth = 14;
    return entry(QStringLiteral("  ") + QLatin1String(name), kNameWidth, Texts::tr(text));
}

} // namespace

QString usageText(const VerbRow& verb)
{
    QStringList words{QStringLiteral("layertool"), QLatin1String(verb.name)};
    if (const QStringList actions = wordsOf(verb.actions); !actions.isEmpty())
        words += actions.join(QLatin1Char('|'));
    if (!optionsOf(verb).empty())
        words += Texts::tr("[选项...]");
    if (!verb.runAlone)
        words += verb.inputs == Inputs::Pairs ? Texts::tr("甲 乙") : Texts::tr("图形或文件夹...");
    else if (*verb.operands)
        words += Texts::tr(verb.operands);
    return words.join(QLatin1Char(' '));
}

QString exitCodesText()
{
    return Texts::tr(
        "完成且没有发现时返回 0；有发现、有差别或有图形失败时返回 1；用法、标准或表格有"
        "误时返回 2；中断时返回 128 加信号的编号。");
}

QString helpText()
{
    QString text =
        Texts::tr("用法：%1").arg(Texts::tr("layertool 命令 [选项...] 图形或文件夹...")) +
        QStringLiteral("\n\n") +
        wrappedParagraph(Texts::tr("处理一个或许多 DXF 图形的图层，不需要窗口。")) +
        QLatin1Char('\n') + Texts::tr("命令：") + QLatin1Char('\n');
    for (const VerbRow& row : verbs())
        text += verbEntry(row.name, row.text);
    return text + verbEntry(kHelpRow.name, kHelpRow.text) + QLatin1Char('\n') +
           wrappedParagraph(exitCodesText());
}

QString helpText(const VerbRow& verb)
{
    QString text = Texts::tr("用法：%1").arg(usageText(verb)) + QStringLiteral("\n\n") +
                   wrappedParagraph(Texts::tr(verb.text));
    const std::vector<OptionRow> options = optionsOf(verb);
    if (!options.empty())
        text += QLatin1Char('\n') + Texts::tr("选项：") + QLatin1Char('\n');
    constexpr int kHeadWidth = 28;
    for (const OptionRow& row : options)
        text += entry(QStringLiteral("  %1 %2").arg(dashed(row), valueText(row)), kHeadWidth,
            Texts::tr(row.text));
    return text;
}

} // namespace layertool
