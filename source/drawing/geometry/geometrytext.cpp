#include "geometrytext.h"

#include <QRegularExpression>

#include <algorithm>
#include <atomic>
#include <cmath>

namespace drawing {

namespace {

bool isWide(QChar character)
{
    return character.unicode() >= 0x2e80;
}

double usualWidth(QChar character)
{
    return isWide(character) ? 1.3 : character.isSpace() ? 0.5 : 0.75;
}

std::atomic<double (*)(QChar)> characterWidth{usualWidth};

bool beginsStack(QChar character)
{
    return character == stack::kFraction || character == stack::kTolerance;
}

/// The index after the character at `i`, or after the stack that begins there.
int behind(const QString& line, int i)
{
    const int end = beginsStack(line[i]) ? line.indexOf(stack::kEnd, i) : i;
    return end < 0 ? line.size() : end + 1;
}

double widthOf(const QString& text)
{
    const auto width = characterWidth.load(std::memory_order_relaxed);
    double sum = 0;
    for (const QChar character : text)
        sum += width(character);
    return sum;
}

/// Parses a stack; `text` includes its separator characters.
TextPiece stackPiece(const QString& text)
{
    TextPiece piece;
    piece.isStack = true;
    piece.hasBar = text.startsWith(stack::kFraction);
    const int divider = text.indexOf(stack::kDivider);
    piece.text = text.mid(1, divider - 1);
    piece.below = text.mid(divider + 1).remove(stack::kEnd);
    piece.width = std::max(widthOf(piece.text), widthOf(piece.below)) * stack::kHeight;
    return piece;
}

/// The character for the `%%` code at `i`, which is the index after the two signs. Moves `i` to the
/// end of the code.
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

/// Converts the inline codes of MTEXT to lines of plain text.
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
            return addStack(argument());
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

    /// The text up to the next semicolon, or all the rest when there is none.
    QString argument()
    {
        const int end = m_text.indexOf(QLatin1Char(';'), m_position);
        QString found = m_text.mid(m_position, end < 0 ? -1 : end - m_position);
        m_position = end < 0 ? m_text.size() : end + 1;
        return found;
    }

    void addStack(const QString& fraction)
    {
        static const QRegularExpression sign(QStringLiteral("[/#^]"));
        const int at = fraction.indexOf(sign);
        if (at < 0) {
            m_line += fraction;
            return;
        }
        m_line += fraction[at] == QLatin1Char('^') ? stack::kTolerance : stack::kFraction;
        m_line += fraction.left(at).trimmed() + stack::kDivider + fraction.mid(at + 1).trimmed();
        m_line += stack::kEnd;
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

/// The index where a line must break so that its beginning is at most `width` wide. It includes at
/// least one character.
int breakPosition(const QString& line, int from, double width)
{
    double used = 0;
    int lastBreak = -1;
    for (int i = from; i < line.size();) {
        const int next = behind(line, i);
        used += textWidth(line.mid(i, next - i));
        if (used > width && i > from && !line[i].isSpace())
            return lastBreak > from ? lastBreak : isWide(line[i]) ? i : -1;
        if (line[i].isSpace() || (isWide(line[i]) && !beginsStack(line[i])))
            lastBreak = next;
        i = next;
    }
    return line.size();
}

/// The index after the word at `from`, which is too wide for a line but stays in one piece.
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
    QStringList lines = MTextReader(text).lines();
    if (!(width > 0) || !std::isfinite(width))
        return lines;
    // The width was determined with another font, so a line is broken only when it is clearly too
    // long.
    constexpr double kSlack = 1.05;
    QStringList wrapped;
    for (const QString& line : lines)
        appendWrapped(wrapped, line, width * kSlack);
    return wrapped;
}

std::vector<TextPiece> piecesOf(const QString& line)
{
    std::vector<TextPiece> pieces;
    for (int i = 0; i < line.size();) {
        const int next = behind(line, i);
        if (beginsStack(line[i])) {
            pieces.push_back(stackPiece(line.mid(i, next - i)));
        } else {
            if (pieces.empty() || pieces.back().isStack)
                pieces.emplace_back();
            pieces.back().text += line[i];
            pieces.back().width += widthOf(line.mid(i, 1));
        }
        i = next;
    }
    return pieces;
}

double textWidth(const QString& text)
{
    const bool isPlain = std::none_of(text.begin(), text.end(), beginsStack);
    if (isPlain)
        return widthOf(text);
    double width = 0;
    for (const TextPiece& piece : piecesOf(text))
        width += piece.width;
    return width;
}

void setCharacterWidths(double (*widthOf)(QChar))
{
    characterWidth = widthOf ? widthOf : usualWidth;
}

} // namespace drawing
