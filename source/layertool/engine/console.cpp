#include "console.h"

#include "texts.h"

#include <cstdio>
#include <unistd.h>

namespace layertool {

namespace {

void put(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

QString timeText(qint64 seconds)
{
    return seconds < 60 ? Texts::tr("%1 秒").arg(seconds)
                        : Texts::tr("%1 分 %2 秒").arg(seconds / 60).arg(seconds % 60);
}

} // namespace

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
