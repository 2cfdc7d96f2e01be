#include "printer.h"

#include "csv.h"
#include "engine/console.h"
#include "texts.h"

#include <QJsonDocument>

namespace layertool {

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

/// For people: a table a drawing, as wide as its cells.
class TextPrinter : public Printer
{
public:
    TextPrinter(const Printing& printing, QIODevice& out) : Printer(out), m_printing(printing) {}

    void add(const Result& result) override;

private:
    void addTable(const std::vector<QStringList>& rows);
    void line(const QString& text) { m_out.write(text.toUtf8() + '\n'); }

    Printing m_printing;
};

void TextPrinter::addTable(const std::vector<QStringList>& rows)
{
    std::vector<int> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), static_cast<size_t>(row.size())));
        for (int i = 0; i < row.size(); ++i)
            widths[static_cast<size_t>(i)] =
                std::max(widths[static_cast<size_t>(i)], widthOf(row.at(i)));
    }
    for (const QStringList& row : rows) {
        QString text;
        for (int i = 0; i < row.size(); ++i)
            text += i + 1 == row.size()
                        ? row.at(i)
                        : padded(row.at(i), widths[static_cast<size_t>(i)]) + QLatin1String("  ");
        while (text.endsWith(QLatin1Char(' ')))
            text.chop(1);
        line(text);
    }
}

void TextPrinter::add(const Result& result)
{
    std::vector<QStringList> rows = m_printing.verb.rows(result);
    const bool isSilent = rows.empty() && result.notices.isEmpty();
    if (isSilent && result.status == Result::Status::Done)
        return;
    if (m_printing.drawings > 1)
        line(result.name + QLatin1Char(':'));
    if (!result.text.isEmpty())
        line(Texts::tr("失败：%1").arg(result.text));
    if (!rows.empty()) {
        QStringList head;
        for (const Column& column : m_printing.verb.columns())
            head += Texts::tr(column.text);
        rows.insert(rows.begin(), head);
        addTable(rows);
    }
    for (const QJsonValue& notice : result.notices)
        line(Texts::tr("注意：%1").arg(notice.toObject().value(QLatin1String("text")).toString()));
    if (m_printing.drawings > 1)
        line({});
}

class CsvPrinter : public Printer
{
public:
    CsvPrinter(const Printing& printing, QIODevice& out) : Printer(out), m_printing(printing) {}

    void begin() override
    {
        // A pipe's reader may not know the mark; a spreadsheet that opens a file needs it.
        if (m_printing.isFile)
            m_out.write(csv::kByteOrderMark);
        QStringList head{QStringLiteral("drawing")};
        for (const Column& column : m_printing.verb.columns())
            head += QLatin1String(column.id);
        m_out.write(csv::row(head));
    }
    void add(const Result& result) override
    {
        for (const QStringList& row : m_printing.verb.rows(result))
            m_out.write(csv::row(QStringList{result.name} + row));
    }

private:
    Printing m_printing;
};

class JsonPrinter : public Printer
{
public:
    JsonPrinter(const Printing& printing, QIODevice& out) : Printer(out), m_printing(printing) {}

    void begin() override
    {
        m_out.write("{\"version\":1,\"verb\":\"" + m_printing.arguments.verb.toUtf8() +
                    "\",\"drawings\":[");
    }
    void add(const Result& result) override
    {
        QJsonObject json = result.toJson();
        for (const char* key : {"number", "inputStamp", "otherStamp", "written", "seconds"})
            json.remove(QLatin1String(key));
        m_out.write(m_isFirst ? "\n" : ",\n");
        m_out.write(QJsonDocument(json).toJson(QJsonDocument::Compact));
        m_isFirst = false;
    }
    void end() override { m_out.write("\n]}\n"); }

private:
    Printing m_printing;
    bool m_isFirst = true;
};

} // namespace

std::unique_ptr<Printer> makePrinter(
    const QString& format, const Printing& printing, QIODevice& out)
{
    if (auto own = printing.verb.printer(format, printing, out))
        return own;
    if (format == QLatin1String("text"))
        return std::make_unique<TextPrinter>(printing, out);
    if (format == QLatin1String("csv"))
        return std::make_unique<CsvPrinter>(printing, out);
    if (format == QLatin1String("json"))
        return std::make_unique<JsonPrinter>(printing, out);
    return nullptr;
}

std::unique_ptr<Printer> Verb::printer(const QString&, const Printing&, QIODevice&) const
{
    return nullptr;
}

std::vector<QStringList> Verb::rows(const Result& result) const
{
    const std::vector<Column> all = columns();
    std::vector<QStringList> table;
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
