#include "textlayout.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace commandline {

namespace {

/// The number of characters that fit into a width, up to the last place where a line may be broken.
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

QString wrappedParagraph(const QString& text)
{
    return wrapped(text, textColumns()).join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QString entry(const QString& head, int headWidth, const QString& text)
{
    const QStringList lines = wrapped(text, textColumns() - headWidth);
    const bool isBeside = widthOf(head) + 1 < headWidth;
    QString all = isBeside ? padded(head, headWidth) : head + QLatin1Char('\n');
    for (int i = 0; i < lines.size(); ++i)
        all += QString(i == 0 && isBeside ? 0 : headWidth, QLatin1Char(' ')) + lines.at(i) +
               QLatin1Char('\n');
    return all;
}

} // namespace commandline
