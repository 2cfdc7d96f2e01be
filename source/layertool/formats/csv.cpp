#include "csv.h"

#include "filecause.h"
#include "texts.h"

#include <QFile>
#include <QTextCodec>

#include <algorithm>

namespace layertool::csv {

namespace {

using drawing::Error;
using drawing::Expected;

QString decoded(const QByteArray& bytes)
{
    if (bytes.startsWith(kByteOrderMark))
        return QString::fromUtf8(bytes.mid(3));
    if (bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff"))
        return QTextCodec::codecForName("UTF-16")->toUnicode(bytes);
    QTextCodec::ConverterState state;
    QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars == 0 && state.remainingChars == 0)
        return text;
    return QTextCodec::codecForName("GB18030")->toUnicode(bytes);
}

/// The possible separator that occurs most often in the first row, not counting quoted fields.
QChar separatorOf(const QString& text)
{
    int counts[3] = {};
    constexpr char kSeparators[] = {',', ';', '\t'};
    bool inQuotes = false;
    for (const QChar c : text) {
        if (c == QLatin1Char('"'))
            inQuotes = !inQuotes;
        if (!inQuotes && c == QLatin1Char('\n'))
            break;
        for (size_t i = 0; i < 3; ++i)
            counts[i] += !inQuotes && c == QLatin1Char(kSeparators[i]) ? 1 : 0;
    }
    return QLatin1Char(kSeparators[std::max_element(counts, counts + 3) - counts]);
}

/// Reads one field after the other.
class Parser
{
public:
    explicit Parser(const QString& text) : m_text(text), m_separator(separatorOf(text)) {}

    Expected<std::vector<QStringList>> parse();

private:
    bool readQuoted();
    void readPlain();
    void endRow();

    QString m_text;
    QChar m_separator;
    int m_at = 0;
    QString m_field;
    QStringList m_row;
    std::vector<QStringList> m_rows;
};

/// Reads a quoted field. Returns false when the quote is never closed.
bool Parser::readQuoted()
{
    for (++m_at; m_at < m_text.size(); ++m_at) {
        if (m_text.at(m_at) != QLatin1Char('"')) {
            m_field += m_text.at(m_at);
            continue;
        }
        if (m_at + 1 == m_text.size() || m_text.at(m_at + 1) != QLatin1Char('"')) {
            ++m_at;
            return true;
        }
        m_field += m_text.at(++m_at);
    }
    return false;
}

void Parser::readPlain()
{
    while (m_at < m_text.size() && m_text.at(m_at) != m_separator &&
           m_text.at(m_at) != QLatin1Char('\n') && m_text.at(m_at) != QLatin1Char('\r'))
        m_field += m_text.at(m_at++);
}

void Parser::endRow()
{
    m_row += m_field;
    m_field.clear();
    const bool isBlank =
        std::all_of(m_row.begin(), m_row.end(), [](const QString& f) { return f.isEmpty(); });
    m_rows.push_back(isBlank ? QStringList() : m_row);
    m_row.clear();
}

Expected<std::vector<QStringList>> Parser::parse()
{
    while (m_at < m_text.size()) {
        const int begin = m_at;
        if (m_text.at(m_at) == QLatin1Char('"') && !readQuoted())
            return tl::make_unexpected(
                Error{Texts::tr("表格第 %1 行的引号没有结束。")
                          .arg(m_text.left(begin).count(QLatin1Char('\n')) + 1)});
        readPlain();
        if (m_at < m_text.size() && m_text.at(m_at) == m_separator) {
            m_row += m_field;
            m_field.clear();
            if (++m_at == m_text.size())
                endRow();
            continue;
        }
        if (m_at < m_text.size() && m_text.at(m_at) == QLatin1Char('\r'))
            ++m_at;
        if (m_at < m_text.size() && m_text.at(m_at) == QLatin1Char('\n'))
            ++m_at;
        endRow();
    }
    return std::move(m_rows);
}

} // namespace

QByteArray row(const QStringList& fields)
{
    QByteArray line;
    for (const QString& field : fields) {
        if (!line.isEmpty() || &field != &fields.front())
            line += ',';
        const bool isPlain = std::none_of(field.begin(), field.end(), [](QChar c) {
            return c == QLatin1Char(',') || c == QLatin1Char('"') || c == QLatin1Char('\n') ||
                   c == QLatin1Char('\r') || c == QLatin1Char(';') || c == QLatin1Char('\t');
        });
        QByteArray bytes = field.toUtf8();
        line += isPlain ? bytes : '"' + bytes.replace('"', "\"\"") + '"';
    }
    return line + "\r\n";
}

Expected<std::vector<QStringList>> parse(const QByteArray& bytes)
{
    return Parser(decoded(bytes)).parse();
}

Expected<std::vector<QStringList>> read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tl::make_unexpected(
            Error{Texts::tr("无法读取表格“%1”：%2。").arg(path, causeOf(file))});
    return parse(file.readAll());
}

} // namespace layertool::csv
