#include "console.h"

#include "texts.h"

#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace layertool {

namespace {

void put(const QString& text, std::FILE* file = stderr)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), file);
    std::fflush(file);
}

/// How many characters of a line fit into a width, cut at the last place where a line may end.
int fitting(const QString& line, int width)
{
    int best = 0;
    int used = 0;
    for (int i = 0; i < line.size(); ++i) {
        if (i > 0 && mayBreak(line.at(i - 1), line.at(i)))
            best = i;
        used += widthOf(line.mid(i, 1));
        if (used > width && best > 0)
            return best;
    }
    return line.size();
}

QString timeText(qint64 seconds)
{
    return seconds < 60 ? Texts::tr("%1 秒").arg(seconds)
                        : Texts::tr("%1 分 %2 秒").arg(seconds / 60).arg(seconds % 60);
}

} // namespace

bool mayBreak(QChar before, QChar next)
{
    static const QString notFirst = QStringLiteral("，。；：、？！”’）》…,.;:)]");
    static const QString notLast = QStringLiteral("“‘（《([");
    const auto isWide = [](QChar c) { return c.unicode() >= 0x1100; };
    if (next == QLatin1Char(' ') || before == QLatin1Char(' '))
        return true;
    return (isWide(before) || isWide(next)) && !notFirst.contains(next) &&
           !notLast.contains(before);
}

void say(const QString& text)
{
    put(text, stdout);
}

void complain(const QString& line)
{
    put(line + QLatin1Char('\n'));
}

void complainOf(const QString& sentence)
{
    complain(QStringLiteral("layertool: ") + sentence);
}

int widthOf(const QString& text)
{
    int width = 0;
    for (const QChar c : text)
        width += c.unicode() >= 0x1100 && !c.isLowSurrogate() ? 2 : c.isLowSurrogate() ? 0 : 1;
    return width;
}

QString padded(const QString& text, int width)
{
    return text + QString(qMax(0, width - widthOf(text)), QLatin1Char(' '));
}

QStringList wrapped(const QString& text, int width)
{
    QStringList lines;
    for (QString rest : text.split(QLatin1Char('\n'))) {
        for (int end = fitting(rest, width); end < rest.size(); end = fitting(rest, width)) {
            const QString line = rest.left(end);
            lines += line.endsWith(QLatin1Char(' ')) ? line.chopped(1) : line;
            rest = rest.mid(rest.at(end) == QLatin1Char(' ') ? end + 1 : end);
        }
        lines += rest;
    }
    return lines;
}

int textColumns()
{
    constexpr int kLeast = 60;
    constexpr int kMost = 100;
    winsize size = {};
    if (::isatty(STDOUT_FILENO) == 0 || ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0)
        return kMost;
    return qBound(kLeast, static_cast<int>(size.ws_col), kMost);
}

ProgressLine::ProgressLine(bool isQuiet) : m_isOn(!isQuiet && ::isatty(STDERR_FILENO) == 1)
{
    m_clock.start();
}

void ProgressLine::show(int done, int total, int failed)
{
    if (!m_isOn)
        return;
    constexpr int kBarWidth = 30;
    const int filled = total == 0 ? kBarWidth : done * kBarWidth / total;
    QString line =
        QStringLiteral("[%1] %2/%3")
            .arg(QString(filled, QLatin1Char('#')) + QString(kBarWidth - filled, QLatin1Char('.')))
            .arg(done)
            .arg(total);
    const double seconds = static_cast<double>(m_clock.elapsed()) / 1000;
    if (done > 0 && seconds > 1) {
        const double rate = done / seconds;
        line += Texts::tr("，每秒 %1 个，还需 %2")
                    .arg(rate, 0, 'f', 1)
                    .arg(timeText(static_cast<qint64>((total - done) / rate)));
    }
    if (failed > 0)
        line += Texts::tr("，失败 %1").arg(failed);
    put(QStringLiteral("\r\033[K") + line);
    m_isShown = true;
}

void ProgressLine::clear()
{
    if (m_isShown)
        put(QStringLiteral("\r\033[K"));
    m_isShown = false;
}

} // namespace layertool
