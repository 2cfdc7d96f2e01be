#include "report.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QSaveFile>

#include <utility>

namespace {

constexpr char kByteOrderMark[] = "\xef\xbb\xbf";
constexpr char kHead[] = "图形,输出,结果,已执行映射,未执行映射,转换对象,未改动对象,说明";
constexpr int kColumns = 8;

QString tr(const char* text)
{
    return QCoreApplication::translate("layertrans", text);
}

QString quoted(QString text)
{
    text.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString rowOf(const Outcome& outcome)
{
    return QStringList{quoted(outcome.input), quoted(outcome.output), statusText(outcome.status),
        QString::number(outcome.applied), QString::number(outcome.leftOut),
        QString::number(outcome.moved), QString::number(outcome.untouched), quoted(outcome.text)}
        .join(QLatin1Char(','));
}

/// Takes CSV text apart: a quoted field may hold commas, line ends and doubled quotes.
std::vector<QStringList> rowsOf(const QString& text)
{
    std::vector<QStringList> rows;
    QStringList row;
    QString field;
    bool inQuotes = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (inQuotes && c == QLatin1Char('"') && text.midRef(i + 1, 1) == QLatin1String("\"")) {
            field += c;
            ++i;
        } else if (c == QLatin1Char('"')) {
            inQuotes = !inQuotes;
        } else if (!inQuotes && (c == QLatin1Char(',') || c == QLatin1Char('\n'))) {
            row += field;
            field.clear();
            if (c == QLatin1Char('\n'))
                rows.push_back(std::exchange(row, QStringList()));
        } else if (inQuotes || c != QLatin1Char('\r')) {
            field += c;
        }
    }
    return rows;
}

Outcome outcomeOf(const QStringList& row)
{
    Outcome outcome;
    outcome.input = row.at(0);
    outcome.output = row.at(1);
    for (const auto status : {Outcome::Status::Translated, Outcome::Status::Skipped,
             Outcome::Status::Failed, Outcome::Status::Cancelled}) {
        if (row.at(2) == statusText(status))
            outcome.status = status;
    }
    outcome.applied = row.at(3).toInt();
    outcome.leftOut = row.at(4).toInt();
    outcome.moved = row.at(5).toInt();
    outcome.untouched = row.at(6).toInt();
    outcome.text = row.at(7);
    return outcome;
}

} // namespace

tl::expected<void, QString> writeReport(const QString& path, const Outcomes& outcomes)
{
    QString text = QString::fromUtf8(kHead) + QLatin1String("\r\n");
    for (const Outcome& outcome : outcomes)
        text += rowOf(outcome) + QLatin1String("\r\n");
    const QByteArray bytes = kByteOrderMark + text.toUtf8();
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return tl::unexpected(tr("无法写入报告“%1”：%2。").arg(path, file.errorString()));
}

tl::expected<Outcomes, QString> readReport(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tl::unexpected(tr("无法读取报告“%1”：%2。").arg(path, file.errorString()));
    QByteArray bytes = file.readAll();
    if (bytes.startsWith(kByteOrderMark))
        bytes.remove(0, static_cast<int>(sizeof kByteOrderMark) - 1);
    const std::vector<QStringList> rows = rowsOf(QString::fromUtf8(bytes));
    if (rows.empty() || rows.front().join(QLatin1Char(',')) != QString::fromUtf8(kHead))
        return tl::unexpected(tr("文件“%1”不是 layertrans 的报告。").arg(path));
    Outcomes outcomes;
    for (size_t i = 1; i < rows.size(); ++i) {
        if (rows[i].size() != kColumns)
            return tl::unexpected(tr("报告“%1”的第 %2 行不完整。").arg(path).arg(i + 1));
        outcomes.push_back(outcomeOf(rows[i]));
    }
    return outcomes;
}

Outcomes withEarlier(Outcomes outcomes, const QString& path)
{
    const auto earlier = readReport(path);
    QHash<QString, Outcome> translated; // By output.
    for (const Outcome& outcome : earlier.value_or(Outcomes())) {
        if (outcome.status == Outcome::Status::Translated)
            translated.insert(outcome.output, outcome);
    }
    for (Outcome& outcome : outcomes) {
        if (outcome.status == Outcome::Status::Skipped)
            outcome = translated.value(outcome.output, outcome);
    }
    return outcomes;
}

Outcomes merged(const std::vector<Outcomes>& reports)
{
    Outcomes all;
    QHash<QString, size_t> known;
    for (const Outcomes& report : reports) {
        for (const Outcome& outcome : report) {
            const auto at = known.constFind(outcome.input);
            if (at == known.constEnd()) {
                known.insert(outcome.input, all.size());
                all.push_back(outcome);
            } else if (outcome.status != Outcome::Status::Skipped) {
                all[*at] = outcome;
            }
        }
    }
    return all;
}
