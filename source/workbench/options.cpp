#include "options.h"

#include "benchtexts.h"
#include "commandtable.h"
#include "language.h"

#include <QCommandLineParser>

namespace {

tl::unexpected<EarlyExit> badUsage(const QString& text)
{
    return tl::unexpected(
        EarlyExit{2, Texts::tr("layerbench: %1\n用 --help 查看用法。\n").arg(text)});
}

QString commandNames()
{
    QStringList names;
    for (const CommandRow& row : CommandTable())
        names.append(QLatin1String(row.name));
    return names.join(QLatin1String(", "));
}

} // namespace

tl::expected<Options, EarlyExit> parseOptions(const QStringList& arguments)
{
    const QCommandLineOption help(
        {QStringLiteral("h"), QStringLiteral("help")}, Texts::tr("显示用法并退出。"));
    const QCommandLineOption version(
        {QStringLiteral("v"), QStringLiteral("version")}, Texts::tr("显示版本并退出。"));
    const QCommandLineOption command(QStringLiteral("command"),
        Texts::tr("打开图形后启动图层命令: %1。").arg(commandNames()), Texts::tr("命令"));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"), Texts::tr("把窗口画成 PNG 文件并退出。"), Texts::tr("文件"));
    const QCommandLineOption gallery(QStringLiteral("gallery"),
        Texts::tr("把每个对话框画成一个 PNG 文件，存入文件夹并退出；不给图形时用示例图形。"),
        Texts::tr("文件夹"));
    const QCommandLineOption sheets(QStringLiteral("sheets"),
        Texts::tr("把模型空间和每个布局各画成一个 PNG 文件，存入文件夹并退出。"),
        Texts::tr("文件夹"));
    const QCommandLineOption module(QStringLiteral("module"),
        Texts::tr("图层模块的库文件；不给时用安装的模块，或环境变量 LAYERBENCH_MODULE 所指的。"),
        Texts::tr("文件"));
    const QCommandLineOption list(
        QStringLiteral("list"), Texts::tr("在标准输出上以 JSON 列出图层表并退出，不显示窗口。"));
    const QCommandLineOption languageOption(QStringLiteral("language"),
        Texts::tr("显示的语言，zh 或 en；不给时依菜单中的选择，再依区域设置。"), Texts::tr("语言"));

    QCommandLineParser parser;
    parser.setApplicationDescription(Texts::tr("图层工作台: 打开 DXF 图形，管理其中的图层。"));
    parser.addOptions(
        {help, version, command, screenshot, gallery, sheets, module, list, languageOption});
    parser.addPositionalArgument(
        Texts::tr("图形"), Texts::tr("要打开的 DXF 文件。"), Texts::tr("[图形]"));
    if (!parser.parse(arguments))
        return badUsage(parser.errorText());
    if (parser.isSet(help))
        return tl::unexpected(EarlyExit{0, parser.helpText()});
    if (parser.isSet(version))
        return tl::unexpected(EarlyExit{
            0, QStringLiteral("layerbench %1\n").arg(QCoreApplication::applicationVersion())});
    if (parser.positionalArguments().size() > 1)
        return badUsage(Texts::tr("一次只能打开一个图形。"));

    Options options;
    options.file = parser.positionalArguments().value(0);
    options.command = parser.value(command);
    options.screenshot = parser.value(screenshot);
    options.gallery = parser.value(gallery);
    options.sheets = parser.value(sheets);
    options.module = parser.value(module);
    options.list = parser.isSet(list);
    if (!options.command.isEmpty() && !CommandTable().find(options.command))
        return badUsage(Texts::tr("没有图层命令“%1”。").arg(options.command));
    const QString spoken = parser.value(languageOption);
    if (parser.isSet(languageOption) && !language::isKnown(spoken))
        return badUsage(Texts::tr("没有语言“%1”；可用 zh 或 en。").arg(spoken));
    if (options.list && options.file.isEmpty())
        return badUsage(Texts::tr("--list 需要一个图形。"));
    if (!options.sheets.isEmpty() && options.file.isEmpty())
        return badUsage(Texts::tr("--sheets 需要一个图形。"));
    return options;
}
