#include "verbs.h"

#include "commandline.h"
#include "engine/console.h"
#include "engine/run.h"
#include "help.h"
#include "manualpage.h"
#include "texts.h"

namespace layertool {

namespace page = commandline::manualpage;

namespace {

QString optionEntries(OptionRows rows)
{
    QString text;
    for (const OptionRow& row : rows)
        text += page::option(optionText(row));
    return text;
}

QString verbEntry(const VerbRow& verb)
{
    QString text = page::subsection(QLatin1String(verb.name)) + page::line(usageText(verb)) +
                   page::paragraph(Texts::tr(verb.text));
    if (*verb.formats)
        text += page::paragraph(
            Texts::tr("格式：%1。").arg(wordsOf(verb.formats).join(Texts::tr("、"))));
    return text + optionEntries(verb.options);
}

int runMan(const Arguments&)
{
    QString text = page::title("layertool", QStringLiteral(LAYERTOOL_VERSION));
    text += page::section(Texts::tr("名称")) + QStringLiteral("layertool \\- ") +
            page::line(Texts::tr("处理一个或许多 DXF 图形的图层，不需要窗口。"));
    text += page::section(Texts::tr("用法")) +
            page::line(Texts::tr("layertool 命令 [选项...] 图形或文件夹..."));
    text += page::section(Texts::tr("命令"));
    for (const VerbRow& verb : verbs())
        text += verbEntry(verb);
    text += page::subsection(QLatin1String(kHelpRow.name)) + page::line(Texts::tr(kHelpRow.text));
    text += page::section(Texts::tr("处理图形的命令都有的选项")) + optionEntries(drawingOptions()) +
            page::option(optionText(formatOption("")));
    text += page::section(Texts::tr("改动图形的命令都有的选项")) + optionEntries(editingOptions());
    text +=
        page::section(Texts::tr("所有命令都有的选项")) + page::option(optionText(languageOption()));
    text += page::section(Texts::tr("返回值")) + page::line(exitCodesText());
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
