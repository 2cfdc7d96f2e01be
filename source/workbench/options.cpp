#include "options.h"

#include "commandtable.h"

#include <QCommandLineParser>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Options", text);
}

tl::unexpected<EarlyExit> badUsage(const QString& text)
{
    return tl::unexpected(EarlyExit{2, tr("layerbench: %1\n用 --help 查看用法。\n").arg(text)});
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
        {QStringLiteral("h"), QStringLiteral("help")}, tr("显示用法并退出。"));
    const QCommandLineOption version(
        {QStringLiteral("v"), QStringLiteral("version")}, tr("显示版本并退出。"));
    const QCommandLineOption command(QStringLiteral("command"),
        tr("打开图形后启动图层命令: %1。").arg(commandNames()), tr("命令"));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"), tr("把窗口画成 PNG 文件并退出。"), tr("文件"));
    const QCommandLineOption gallery(QStringLiteral("gallery"),
        tr("把每个对话框画成一个 PNG 文件，存入文件夹并退出；不给图形时用示例图形。"),
        tr("文件夹"));
    const QCommandLineOption sheets(QStringLiteral("sheets"),
        tr("把模型空间和每个布局各画成一个 PNG 文件，存入文件夹并退出。"), tr("文件夹"));
    const QCommandLineOption list(
        QStringLiteral("list"), tr("在标准输出上以 JSON 列出图层表并退出，不显示窗口。"));

    QCommandLineParser parser;
    parser.setApplicationDescription(tr("图层工作台: 打开 DXF 图形，管理其中的图层。"));
    parser.addOptions({help, version, command, screenshot, gallery, sheets, list});
    parser.addPositionalArgument(tr("图形"), tr("要打开的 DXF 文件。"), tr("[图形]"));
    if (!parser.parse(arguments))
        return badUsage(parser.errorText());
    if (parser.isSet(help))
        return tl::unexpected(EarlyExit{0, parser.helpText()});
    if (parser.isSet(version))
        return tl::unexpected(EarlyExit{
            0, QStringLiteral("layerbench %1\n").arg(QCoreApplication::applicationVersion())});
    if (parser.positionalArguments().size() > 1)
        return badUsage(tr("一次只能打开一个图形。"));

    Options options;
    options.file = parser.positionalArguments().value(0);
    options.command = parser.value(command);
    options.screenshot = parser.value(screenshot);
    options.gallery = parser.value(gallery);
    options.sheets = parser.value(sheets);
    options.list = parser.isSet(list);
    if (!options.command.isEmpty() && !CommandTable().find(options.command))
        return badUsage(tr("没有图层命令“%1”。").arg(options.command));
    if (options.list && options.file.isEmpty())
        return badUsage(tr("--list 需要一个图形。"));
    if (!options.sheets.isEmpty() && options.file.isEmpty())
        return badUsage(tr("--sheets 需要一个图形。"));
    return options;
}
