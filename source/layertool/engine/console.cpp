#include "console.h"

#include "texts.h"

#include <cstdio>
#include <unistd.h>

namespace layertool {

namespace {

void put(const QString& text, std::FILE* file = stderr)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), file);
    std::fflush(file);
}

QString timeText(qint64 seconds)
{
    return seconds < 60 ? Texts::tr("%1 秒").arg(seconds)
                        : Texts::tr("%1 分 %2 秒").arg(seconds / 60).arg(seconds % 60);
}

} // namespace

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
