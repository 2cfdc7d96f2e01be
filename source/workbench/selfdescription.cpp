#include "selfdescription.h"

#include "benchtexts.h"
#include "commandtable.h"
#include "language.h"
#include "manualpage.h"
#include "shellcompletion.h"

namespace selfdescription {

namespace page = commandline::manualpage;

using commandline::Operands;
using commandline::OptionKind;
using commandline::OptionRow;
using commandline::OptionText;

namespace {

const char* commandWords()
{
    static const QByteArray words = [] {
        QByteArrayList names;
        for (const CommandRow& row : CommandTable())
            names.append(row.name);
        return names.join(' ');
    }();
    return words.constData();
}

QString valueText(OptionKind kind)
{
    switch (kind) {
    case OptionKind::Flag:
        return {};
    case OptionKind::Folder:
        return Texts::tr("文件夹");
    case OptionKind::Choice:
        return Texts::tr("词");
    default:
        return Texts::tr("文件");
    }
}

} // namespace

const std::vector<OptionRow>& options()
{
    static const std::vector<OptionRow> rows{
        {"help", OptionKind::Flag, QT_TRANSLATE_NOOP("workbench", "显示用法并退出。"), "", false,
            true, 'h'},
        {"version", OptionKind::Flag, QT_TRANSLATE_NOOP("workbench", "显示版本并退出。"), "", false,
            true, 'v'},
        {"command", OptionKind::Choice,
            QT_TRANSLATE_NOOP("workbench", "打开图形后启动图层命令: %1。"), commandWords()},
        {"screenshot", OptionKind::Path,
            QT_TRANSLATE_NOOP("workbench", "把窗口画成 PNG 文件并退出。")},
        {"gallery", OptionKind::Folder,
            QT_TRANSLATE_NOOP("workbench",
                "把每个对话框画成一个 PNG 文件，存入文件夹并退出；不给图形时用示例图形。")},
        {"sheets", OptionKind::Folder,
            QT_TRANSLATE_NOOP(
                "workbench", "把模型空间和每个布局各画成一个 PNG 文件，存入文件夹并退出。")},
        {"module", OptionKind::Path,
            QT_TRANSLATE_NOOP("workbench",
                "图层模块的库文件；不给时用安装的模块，或环境变量 LAYERBENCH_MODULE 所指的。")},
        {"list", OptionKind::Flag,
            QT_TRANSLATE_NOOP("workbench", "在标准输出上以 JSON 列出图层表并退出，不显示窗口。")},
        {"language", OptionKind::Choice,
            QT_TRANSLATE_NOOP("workbench", "显示的语言: %1；不给时依菜单中的选择，再依区域设置。"),
            language::kCodes},
        {"completion", OptionKind::Choice,
            QT_TRANSLATE_NOOP("workbench", "输出命令补全脚本并退出: %1。"), "bash zsh"},
        {"man", OptionKind::Flag,
            QT_TRANSLATE_NOOP("workbench", "输出手册页 layerbench(1)（roff）并退出。")},
    };
    return rows;
}

std::vector<OptionText> optionTexts()
{
    std::vector<OptionText> texts;
    for (const OptionRow& row : options()) {
        QString text = Texts::tr(row.text);
        if (row.kind == OptionKind::Choice)
            text = text.arg(commandline::wordsOf(row.choices).join(QLatin1String(", ")));
        texts.push_back({row, valueText(row.kind), text});
    }
    return texts;
}

QString purpose()
{
    return Texts::tr("图层工作台: 打开 DXF 图形，管理其中的图层。");
}

QString manualPage()
{
    QString text = page::title("layerbench", QCoreApplication::applicationVersion());
    text += page::section(Texts::tr("名称")) + QStringLiteral("layerbench \\- ") +
            page::line(purpose());
    text += page::section(Texts::tr("用法")) + page::line(Texts::tr("layerbench [选项...] [图形]"));
    text += page::section(Texts::tr("选项"));
    for (const OptionText& option : optionTexts())
        text += page::option(option);
    text += page::section(Texts::tr("返回值")) +
            page::line(Texts::tr("正常时返回 0；文件读不出或写不成时返回 1；用法有误时返回 2。"));
    text += page::section(Texts::tr("另见")) + page::line(QStringLiteral("layertool(1)"));
    return text;
}

QString completionScript(const QString& shell)
{
    if (shell == QLatin1String("bash"))
        return commandline::bashScript(
            "layerbench", commandline::bashWords(options(), {}, Operands::Drawings));
    if (shell == QLatin1String("zsh"))
        return commandline::zshScript(
            "layerbench", QLatin1String("    ") +
                              commandline::zshArguments(optionTexts(), {}, Operands::Drawings) +
                              QLatin1Char('\n'));
    return {};
}

} // namespace selfdescription
