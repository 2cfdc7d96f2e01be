#include "options.h"

#include "benchtexts.h"
#include "commandtable.h"
#include "selfdescription.h"

#include <QCommandLineParser>

namespace {

tl::unexpected<EarlyExit> badUsage(const QString& text)
{
    return tl::unexpected(
        EarlyExit{2, Texts::tr("layerbench: %1\n用 --help 查看用法。\n").arg(text)});
}

QCommandLineOption parserOption(const commandline::OptionText& option)
{
    QStringList names{QLatin1String(option.row.name)};
    if (option.row.letter)
        names.prepend(QString(QLatin1Char(option.row.letter)));
    return {names, option.text, option.value};
}

/// Texts that are asked for instead of a window; empty when none is.
QString answerTo(const QCommandLineParser& parser)
{
    if (parser.isSet(QStringLiteral("help")))
        return parser.helpText();
    if (parser.isSet(QStringLiteral("version")))
        return QStringLiteral("layerbench %1\n").arg(QCoreApplication::applicationVersion());
    if (parser.isSet(QStringLiteral("man")))
        return selfdescription::manualPage();
    return selfdescription::completionScript(parser.value(QStringLiteral("completion")));
}

/// Refuses a value that is none of an option's choices; commands may be in any letter case.
QString wrongChoice(const QCommandLineParser& parser)
{
    for (const commandline::OptionRow& row : selfdescription::options()) {
        const QString name = QLatin1String(row.name);
        const QString value = parser.value(name);
        const QStringList choices = commandline::wordsOf(row.choices);
        if (row.kind == commandline::OptionKind::Choice && parser.isSet(name) &&
            !choices.contains(value) && !choices.contains(value.toUpper()))
            return Texts::tr("--%1 没有“%2”；可用 %3。")
                .arg(name, value, choices.join(QLatin1String(", ")));
    }
    return {};
}

} // namespace

tl::expected<Options, EarlyExit> parseOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(selfdescription::purpose());
    for (const commandline::OptionText& option : selfdescription::optionTexts())
        parser.addOption(parserOption(option));
    parser.addPositionalArgument(
        Texts::tr("图形"), Texts::tr("要打开的 DXF 文件。"), Texts::tr("[图形]"));
    if (!parser.parse(arguments))
        return badUsage(parser.errorText());
    if (const QString wrong = wrongChoice(parser); !wrong.isEmpty())
        return badUsage(wrong);
    if (const QString answer = answerTo(parser); !answer.isEmpty())
        return tl::unexpected(EarlyExit{0, answer});
    if (parser.positionalArguments().size() > 1)
        return badUsage(Texts::tr("一次只能打开一个图形。"));

    Options options;
    options.file = parser.positionalArguments().value(0);
    options.command = parser.value(QStringLiteral("command"));
    options.screenshot = parser.value(QStringLiteral("screenshot"));
    options.gallery = parser.value(QStringLiteral("gallery"));
    options.sheets = parser.value(QStringLiteral("sheets"));
    options.module = parser.value(QStringLiteral("module"));
    options.list = parser.isSet(QStringLiteral("list"));
    if (options.list && options.file.isEmpty())
        return badUsage(Texts::tr("--list 需要一个图形。"));
    if (!options.sheets.isEmpty() && options.file.isEmpty())
        return badUsage(Texts::tr("--sheets 需要一个图形。"));
    return options;
}
