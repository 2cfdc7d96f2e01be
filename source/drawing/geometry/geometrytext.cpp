#include "geometrytext.h"

#include <cmath>

namespace drawing {

namespace {

bool isWide(QChar character)
{
    return character.unicode() >= 0x2e80;
}

double widthOf(QChar character)
{
    return isWide(character) ? 1.3 : character.isSpace() ? 0.5 : 0.75;
}

/// The character a `%%` code at `i` (behind the two signs) stands for; moves `i` behind the code.
QString percentCode(const QString& text, int& i)
{
    const QChar code = text[i].toLower();
    if (code.isDigit()) {
        const QString number = text.mid(i, 3);
        bool valid = false;
        const ushort value = number.toUShort(&valid);
        i += number.size();
        return valid ? QString(QChar(value)) : QString();
    }
    ++i;
    switch (code.unicode()) {
    case 'd':
        return QStringLiteral("°");
    case 'p':
        return QStringLiteral("±");
    case 'c':
        return QStringLiteral("⌀");
    case '%':
        return QStringLiteral("%");
    case 'u':
    case 'o':
    case 'k':
        return {};
    default:
        return QStringLiteral("%%") + text[i - 1];
    }
}

/// Reads MTEXT's inline codes into lines of plain text.
class MTextReader
{
public:
    explicit MTextReader(const QString& text) : m_text(text) {}

    QStringList lines()
    {
        while (m_position < m_text.size())
            step();
        m_lines.append(plainText(m_line));
        return m_lines;
    }

private:
    void step()
    {
        const QChar character = m_text[m_position++];
        if (character == QLatin1Char('\\') && m_position < m_text.size())
            code(m_text[m_position++]);
        else if (character == QLatin1Char('\n') || character == QLatin1Char('\r'))
            endLine();
        else if (character == QLatin1Char('\t'))
            m_line += QLatin1Char(' ');
        else if (character != QLatin1Char('{') && character != QLatin1Char('}'))
            m_line += character;
    }

    void code(QChar character)
    {
        switch (character.unicode()) {
        case 'P':
        case 'X':
            return endLine();
        case '~':
            m_line += QChar(QChar::Nbsp);
            return;
        case '\\':
        case '{':
        case '}':
            m_line += character;
            return;
        case 'S':
            return stack(argument());
        case 'A':
        case 'C':
        case 'c':
        case 'f':
        case 'F':
        case 'H':
        case 'p':
        case 'Q':
        case 'T':
        case 'W':
            argument();
            return;
        case 'L':
        case 'l':
        case 'O':
        case 'o':
        case 'K':
        case 'k':
        case 'N':
            return;
        default:
            m_line += QLatin1Char('\\');
            m_line += character;
        }
    }

    /// What lies before the next semicolon; all the rest when there is none.
    QString argument()
    {
        const int end = m_text.indexOf(QLatin1Char(';'), m_position);
        const QString found = m_text.mid(m_position, end < 0 ? -1 : end - m_position);
        m_position = end < 0 ? m_text.size() : end + 1;
        return found;
    }

    void stack(QString fraction)
    {
        fraction.replace(QLatin1Char('#'), QLatin1Char('/'));
        fraction.replace(QLatin1Char('^'), QLatin1Char('/'));
        if (fraction.startsWith(QLatin1Char('/')) || fraction.endsWith(QLatin1Char('/')))
            fraction.remove(QLatin1Char('/'));
        m_line += fraction;
    }

    void endLine()
    {
        m_lines.append(plainText(m_line));
        m_line.clear();
    }

    const QString& m_text;
    int m_position = 0;
    QString m_line;
    QStringList m_lines;
};

/// Where a line has to break so that its head is no wider than `width`; at least one character.
int breakPosition(const QString& line, int from, double width)
{
    double used = 0;
    int lastBreak = -1;
    for (int i = from; i < line.size(); ++i) {
        used += widthOf(line[i]);
        if (used > width && i > from && !line[i].isSpace())
            return lastBreak > from ? lastBreak : isWide(line[i]) ? i : -1;
        if (line[i].isSpace() || isWide(line[i]))
            lastBreak = i + 1;
    }
    return line.size();
}

/// Behind the word at `from`, which is wider than the line and stays whole.
int endOfWord(const QString& line, int from)
{
    while (from < line.size() && !line[from].isSpace())
        ++from;
    while (from < line.size() && line[from].isSpace())
        ++from;
    return from;
}

void appendWrapped(QStringList& lines, const QString& line, double width)
{
    int from = 0;
    do {
        int end = breakPosition(line, from, width);
        if (end < 0)
            end = endOfWord(line, from);
        const QString part = line.mid(from, end - from);
        lines.append(from == 0 && end == line.size() ? part : part.trimmed());
        from = end;
    } while (from < line.size());
}

} // namespace

QString plainText(const QString& text)
{
    QString plain;
    plain.reserve(text.size());
    for (int i = 0; i < text.size();) {
        const bool code =
            text[i] == QLatin1Char('%') && i + 2 < text.size() && text[i + 1] == QLatin1Char('%');
        if (!code) {
            plain += text[i++];
            continue;
        }
        i += 2;
        plain += percentCode(text, i);
    }
    return plain;
}

QStringList plainLines(const QString& text, double width)
{
    const QStringList lines = MTextReader(text).lines();
    if (!(width > 0) || !std::isfinite(width))
        return lines;
    // The width is an estimate, so lines are only broken when clearly too long.
    constexpr double kSlack = 1.05;
    QStringList wrapped;
    for (const QString& line : lines)
        appendWrapped(wrapped, line, width * kSlack);
    return wrapped;
}

double estimatedWidth(const QString& text)
{
    double width = 0;
    for (const QChar character : text)
        width += widthOf(character);
    return width;
}

} // namespace drawing
