#include "commandline.h"
#include "engine/console.h"
#include "engine/run.h"
#include "engine/worker.h"
#include "language.h"
#include "texts.h"

#include <QTextCodec>

#include <cstdio>

namespace {

using namespace layertool;

void say(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
}

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

/// "--language" counts for help and refusals too, so it is looked for before all else.
QString languageOf(const QStringList& words)
{
    const int at = words.indexOf(QStringLiteral("--language"));
    const QStringList joined = words.filter(QStringLiteral("--language="));
    return at >= 0 ? words.value(at + 1) : joined.value(0).section(QLatin1Char('='), 1);
}

int run(const QStringList& words)
{
    const QString first = words.value(1);
    if (first.isEmpty() || first == QLatin1String("--help") || first == QLatin1String("-h") ||
        first == QLatin1String("help"))
        return help(words.value(2).startsWith(QLatin1Char('-')) ? QString() : words.value(2));
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
    // Where no locale is set, as in batch systems, file names are UTF-8 all the same.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication::setApplicationName(QStringLiteral("layertool"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LAYERTOOL_VERSION));
    const QStringList words = QCoreApplication::arguments();
    if (words.value(1) == QLatin1String(kWorkerOption))
        return runWorker();
    useLanguage(languageOf(words));
    return run(words);
}
