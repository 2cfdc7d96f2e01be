#include "printer.h"

#include "csv.h"
#include "engine/console.h"
#include "textlayout.h"
#include "texts.h"

#include <QJsonDocument>

#include <utility>

namespace layertool {

using commandline::widthOf;

namespace {

QString textOf(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', 15);
    default:
        return value.toString();
    }
}

/// Formats rows as a table whose columns are as wide as their contents.
QString tableText(const std::vector<QStringList>& rows)
{
    std::vector<int> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), static_cast<size_t>(row.size())));
        for (int i = 0; i < row.size(); ++i)
            widths[static_cast<size_t>(i)] =
                std::max(widths[static_cast<size_t>(i)], widthOf(row.at(i)));
    }
    QString text;
    // Blanks are only written before the next cell with text, so that no line ends with them.
    int blanks = 0;
    for (const QStringList& row : rows) {
        for (int i = 0; i < row.size(); ++i) {
            const QString& cell = row.at(i);
            if (!cell.isEmpty()) {
                text.resize(text.size() + blanks, QLatin1Char(' '));
                text += cell;
                blanks = 0;
            }
            blanks += widths[static_cast<size_t>(i)] - widthOf(cell) + 2;
        }
        text += QLatin1Char('\n');
        blanks = 0;
    }
    return text;
}

/// Prints one table per drawing for people.
class TextPrinter : public Printer
{
public:
    explicit TextPrinter(const Printing& printing) : m_printing(printing) {}

    QByteArray textOf(const Result& result) const override;

private:
    Printing m_printing;
};

QByteArray TextPrinter::textOf(const Result& result) const
{
    std::vector<QStringList> rows = m_printing.verb.rows(result);
    const bool isSilent = rows.empty() && result.notices.isEmpty();
    if (isSilent && result.status == Result::Status::Done)
        return {};
    QString text;
    if (m_printing.drawings > 1)
        text += result.name + QLatin1String(":\n");
    if (!result.text.isEmpty())
        text += Texts::tr("失败：%1").arg(result.text) + QLatin1Char('\n');
    if (!rows.empty()) {
        QStringList head;
        for (const Column& column : m_printing.verb.columns())
            head += Texts::tr(column.text);
        rows.insert(rows.begin(), head);
        text += tableText(rows);
    }
    for (const QJsonValue& notice : result.notices)
        text +=
            Texts::tr("注意：%1").arg(notice.toObject().value(QLatin1String("text")).toString()) +
            QLatin1Char('\n');
    if (m_printing.drawings > 1)
        text += QLatin1Char('\n');
    return text.toUtf8();
}

class CsvPrinter : public Printer
{
public:
    explicit CsvPrinter(const Printing& printing) : m_printing(printing) {}

    QByteArray begin() override
    {
        QStringList head{QStringLiteral("drawing")};
        for (const Column& column : m_printing.verb.columns())
            head += QLatin1String(column.id);
        // A spreadsheet needs the byte order mark in a file; the reader of a pipe may not know it.
        return (m_printing.isFile ? csv::kByteOrderMark : "") + csv::row(head);
    }
    QByteArray textOf(const Result& result) const override
    {
        QByteArray text;
        for (const QStringList& row : m_printing.verb.rows(result))
            text += csv::row(QStringList{result.name} + row);
        return text;
    }

private:
    Printing m_printing;
};

class JsonPrinter : public Printer
{
public:
    explicit JsonPrinter(const Printing& printing) : m_printing(printing) {}

    QByteArray begin() override
    {
        return "{\"version\":1,\"verb\":\"" + m_printing.arguments.verb.toUtf8() +
               "\",\"drawings\":[";
    }
    QByteArray textOf(const Result& result) const override
    {
        QJsonObject json = result.toJson();
        for (const char* key : {"number", "inputStamp", "otherStamp", "written", "seconds"})
            json.remove(QLatin1String(key));
        if (!result.cells.empty())
            json.insert(QStringLiteral("data"), m_printing.verb.data(result));
        return QJsonDocument(json).toJson(QJsonDocument::Compact);
    }
    QByteArray added(const Result&, const QByteArray& text) override
    {
        return (std::exchange(m_isFirst, false) ? "\n" : ",\n") + text;
    }
    QByteArray end() override { return "\n]}\n"; }

private:
    Printing m_printing;
    bool m_isFirst = true;
};

} // namespace

QString formatOf(const Arguments& arguments, const VerbRow& verb)
{
    return arguments.value("format", wordsOf(verb.formats).value(0));
}

std::unique_ptr<Printer> makePrinter(const QString& format, const Printing& printing)
{
    if (auto own = printing.verb.printer(format, printing))
        return own;
    if (format == QLatin1String("text"))
        return std::make_unique<TextPrinter>(printing);
    if (format == QLatin1String("csv"))
        return std::make_unique<CsvPrinter>(printing);
    if (format == QLatin1String("json"))
        return std::make_unique<JsonPrinter>(printing);
    return nullptr;
}

std::unique_ptr<Printer> Verb::printer(const QString&, const Printing&) const
{
    return nullptr;
}

QJsonArray Verb::data(const Result& result) const
{
    if (result.cells.empty())
        return result.data;
    const std::vector<Column> all = columns();
    QJsonArray data;
    for (const std::vector<QVariant>& row : result.cells) {
        QJsonObject json;
        for (size_t i = 0; i < row.size(); ++i)
            json.insert(QLatin1String(all[i].id), QJsonValue::fromVariant(row[i]));
        data.append(json);
    }
    return data;
}

std::vector<QStringList> Verb::rows(const Result& result) const
{
    std::vector<QStringList> table;
    for (const std::vector<QVariant>& cells : result.cells) {
        QStringList row;
        row.reserve(static_cast<int>(cells.size()));
        for (const QVariant& cell : cells)
            row += cell.toString();
        table.push_back(row);
    }
    const std::vector<Column> all = columns();
    for (const QJsonValue& value : result.data) {
        const QJsonObject json = value.toObject();
        QStringList row;
        for (const Column& column : all)
            row += textOf(json.value(QLatin1String(column.id)));
        table.push_back(row);
    }
    return table;
}

} // namespace layertool
