#include "console.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>
#include <unistd.h>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("layertrans", text);
}

void put(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fflush(stream);
}

/// Columns a text takes on a terminal: a Chinese character takes two.
int widthOf(const QString& text)
{
    int width = 0;
    for (const QChar c : text)
        width += c.unicode() >= 0x1100 ? 2 : 1;
    return width;
}

} // namespace

void say(const QString& line)
{
    put(stdout, line + QLatin1Char('\n'));
}

void complain(const QString& line)
{
    put(stderr, line + QLatin1Char('\n'));
}

ProgressLine::ProgressLine() : m_isTerminal(::isatty(STDERR_FILENO) == 1) {}

void ProgressLine::show(int done, int total, int failed)
{
    if (!m_isTerminal)
        return;
    constexpr int kBarWidth = 30;
    const int filled = total == 0 ? kBarWidth : done * kBarWidth / total;
    const QString bar =
        QString(filled, QLatin1Char('#')) + QString(kBarWidth - filled, QLatin1Char('.'));
    QString line = tr("[%1] %2/%3").arg(bar).arg(done).arg(total);
    if (failed > 0)
        line += tr("，失败 %1").arg(failed);
    put(stderr, QStringLiteral("\r\033[K") + line);
    m_isShown = true;
}

void ProgressLine::clear()
{
    if (m_isShown)
        put(stderr, QStringLiteral("\r\033[K"));
    m_isShown = false;
}

QString summaryLine(const Outcome& outcome, int done, int total)
{
    const QString head =
        tr("%1/%2 %3：%4").arg(done).arg(total).arg(outcome.input, statusText(outcome.status));
    switch (outcome.status) {
    case Outcome::Status::Translated:
        return head + tr("，映射 %1 条，转换 %2 个对象，未改动 %3 个 → %4%5")
                          .arg(outcome.applied)
                          .arg(outcome.moved)
                          .arg(outcome.untouched)
                          .arg(QFileInfo(outcome.output).fileName(),
                              outcome.text.isEmpty() ? QString() : tr("。") + outcome.text);
    case Outcome::Status::Skipped:
        return head + tr("，已有 %1").arg(QFileInfo(outcome.output).fileName());
    default:
        return head + tr("。") + outcome.text;
    }
}

QStringList totalsTable(const Outcomes& outcomes)
{
    const Totals totals = Totals::of(outcomes);
    const std::pair<QString, qint64> rows[] = {
        {tr("图形"), totals.drawings},
        {tr("已转换"), totals.translated},
        {tr("已跳过"), totals.skipped},
        {tr("失败"), totals.failed},
        {tr("因中断未处理"), totals.cancelled},
        {tr("已执行的映射"), totals.applied},
        {tr("未执行的映射"), totals.leftOut},
        {tr("已转换的对象"), totals.moved},
        {tr("未改动的对象"), totals.untouched},
    };
    constexpr int kNameWidth = 16;
    constexpr int kNumberWidth = 10;
    QStringList lines;
    for (const auto& [name, number] : rows)
        lines += name + QString(kNameWidth - widthOf(name), QLatin1Char(' ')) +
                 QString::number(number).rightJustified(kNumberWidth);
    for (const Outcome& outcome : outcomes) {
        if (outcome.status == Outcome::Status::Failed)
            lines += tr("失败：%1。%2").arg(outcome.input, outcome.text);
    }
    return lines;
}
