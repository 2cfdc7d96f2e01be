#include "commandline.h"
#include "engine/console.h"
#include "engine/run.h"
#include "engine/worker.h"
#include "help.h"
#include "language.h"
#include "texts.h"

#include <QTextCodec>

#include <cstdio>

namespace {

using namespace layertool;

int help(const QString& verb)
{
    const VerbRow* const row = findVerb(verb);
    if (!verb.isEmpty() && !row) {
        complainOf(Texts::tr("没有名为“%1”的命令。").arg(verb));
        return kMisuse;
    }
    say(row ? helpText(*row) : helpText());
    return kFine;
}

/// Shows the help for a command line without a verb. Scripts must not mistake this for success.
int refuseNothing()
{
    complain(helpText().trimmed());
    return kMisuse;
}

/// The verb for which help is requested; empty for general help.
QString helpTopic(const QStringList& words)
{
    for (int i = 2; i < words.size(); ++i) {
        if (words.at(i) == QLatin1String("--language"))
            ++i;
        else if (!words.at(i).startsWith(QLatin1Char('-')))
            return words.at(i);
    }
    return {};
}

/// Moves a "--language" before the verb behind it, where options are parsed.
QStringList verbFirst(QStringList words)
{
    int options = 0;
    if (words.value(1) == QLatin1String("--language"))
        options = 2;
    else if (words.value(1).startsWith(QLatin1String("--language=")))
        options = 1;
    if (options > 0 && words.size() > options + 1)
        words.move(options + 1, 1);
    return words;
}

int run(const QStringList& words)
{
    const QString first = words.value(1);
    if (first.isEmpty())
        return refuseNothing();
    if (first == QLatin1String("--help") || first == QLatin1String("-h") ||
        first == QLatin1String("help"))
        return help(helpTopic(words));
    if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
        say(QStringLiteral("layertool %1\n").arg(QCoreApplication::applicationVersion()));
        return kFine;
    }
    if (words.contains(QLatin1String("--help")) || words.contains(QLatin1String("-h")))
        return help(first);
    const auto arguments = readCommandLine(words);
    if (!arguments) {
        const QByteArray text = arguments.error().text.toUtf8();
        std::fputs(text.constData(), stderr);
        return arguments.error().code;
    }
    const VerbRow& row = *findVerb(arguments->verb);
    return row.runAlone ? row.runAlone(*arguments) : runVerb(*arguments, row);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    // File names are UTF-8 even when no locale is set, as in batch systems.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication::setApplicationName(QStringLiteral("layertool"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LAYERTOOL_VERSION));
    const QStringList words = verbFirst(QCoreApplication::arguments());
    if (words.value(1) == QLatin1String(kWorkerOption))
        return runWorker();
    useLanguage(language::asked(words));
    return run(words);
}
