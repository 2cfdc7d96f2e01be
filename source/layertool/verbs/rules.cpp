#include "verbs.h"

#include "check/mends.h"
#include "check/rules.h"
#include "engine/console.h"
#include "engine/run.h"
#include "textlayout.h"
#include "texts.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace layertool {

using commandline::padded;
using commandline::textColumns;
using commandline::wrapped;

namespace {

int fail(const QString& text)
{
    complainOf(text);
    return kMisuse;
}

QString listingText()
{
    constexpr int kIdWidth = 22;
    constexpr int kLevelWidth = 9;
    QString text;
    for (const Rule& rule : rules()) {
        const QStringList lines =
            wrapped(Texts::tr(rule.text), textColumns() - kIdWidth - kLevelWidth);
        text += padded(QLatin1String(rule.id), kIdWidth) +
                padded(QLatin1String(levelWord(rule.level)), kLevelWidth) +
                lines.join(QLatin1Char('\n') + QString(kIdWidth + kLevelWidth, QLatin1Char(' '))) +
                QLatin1Char('\n');
    }
    return text;
}

int runRules(const Arguments& arguments)
{
    if (arguments.value("format") != QLatin1String("json")) {
        say(listingText());
        return kFine;
    }
    QJsonArray all;
    for (const Rule& rule : rules())
        all.append(QJsonObject{{QStringLiteral("id"), QLatin1String(rule.id)},
            {QStringLiteral("level"), QLatin1String(levelWord(rule.level))},
            {QStringLiteral("text"), Texts::tr(rule.text)},
            {QStringLiteral("keys"), QJsonArray::fromStringList(wordsOf(rule.keys))},
            {QStringLiteral("mended"), isMended(rule)}});
    say(QString::fromUtf8(QJsonDocument(all).toJson()));
    return kFine;
}

QString explanation(const Rule& rule)
{
    const QString keys = wordsOf(rule.keys).join(Texts::tr("、"));
    const QStringList lines{
        QLatin1String(rule.id),
        Texts::tr(rule.text),
        Texts::tr("级别：%1；规则文件的 rules 可以改为 off、note、warning 或 error。")
            .arg(QLatin1String(levelWord(rule.level))),
        keys.isEmpty() ? Texts::tr("它不看规则文件的其他键。")
                       : Texts::tr("它所看的规则文件的键：%1。").arg(keys),
        isMended(rule) ? Texts::tr("fix 会改正它能改正的。") : Texts::tr("fix 不改动它，只报告。"),
    };
    QString text;
    for (const QString& line : lines)
        text += commandline::wrappedParagraph(line);
    return text;
}

int runExplain(const Arguments& arguments)
{
    if (arguments.paths.isEmpty())
        return fail(Texts::tr("哪条规则？用 layertool rules 列出全部规则。"));
    QStringList texts;
    for (const QString& id : arguments.paths) {
        const Rule* const rule = findRule(id);
        if (!rule)
            return fail(Texts::tr("没有名为“%1”的规则；用 layertool rules 列出全部规则。").arg(id));
        texts += explanation(*rule);
    }
    say(texts.join(QLatin1Char('\n')));
    return kFine;
}

} // namespace

VerbRow rulesVerb()
{
    VerbRow row{"rules", QT_TRANSLATE_NOOP("layertool", "列出检查的规则：标识、级别、说明。"), {},
        "text json", false, nullptr};
    row.runAlone = runRules;
    return row;
}

VerbRow explainVerb()
{
    VerbRow row{
        "explain", QT_TRANSLATE_NOOP("layertool", "说明一条或几条规则。"), {}, "", false, nullptr};
    row.runAlone = runExplain;
    row.operands = QT_TRANSLATE_NOOP("layertool", "规则...");
    return row;
}

} // namespace layertool
