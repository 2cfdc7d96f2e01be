#include "report.h"

#include "filecause.h"
#include "formats/csv.h"
#include "textlayout.h"
#include "texts.h"

#include <QSaveFile>
#include <QSet>

namespace layertool {

namespace {

QString joined(const QJsonArray& notices, const char* key, const char* separator)
{
    QStringList parts;
    for (const QJsonValue& notice : notices)
        parts += notice.toObject().value(QLatin1String(key)).toString();
    return parts.join(QLatin1String(separator));
}

QStringList countWords(const std::vector<ReportRow>& rows)
{
    QSet<QString> words;
    for (const ReportRow& row : rows) {
        for (const QString& word : row.result.counts.keys())
            words.insert(word);
    }
    QStringList sorted = words.values();
    sorted.sort();
    return sorted;
}

QString flag(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

void Totals::add(const Result& result)
{
    ++drawings;
    done += result.status == Result::Status::Done || result.status == Result::Status::Skipped;
    skipped += result.status == Result::Status::Skipped;
    changed += result.changed;
    found += result.found;
    failed += result.status == Result::Status::Failed;
    cancelled += result.status == Result::Status::Cancelled;
}

QStringList Totals::lines() const
{
    const std::pair<QString, int> rows[] = {
        {Texts::tr("图形"), drawings},
        {Texts::tr("完成"), done},
        {Texts::tr("其中早已完成"), skipped},
        {Texts::tr("有改动"), changed},
        {Texts::tr("有发现"), found},
        {Texts::tr("失败"), failed},
        {Texts::tr("因中断未处理"), cancelled},
    };
    constexpr int kNameWidth = 24;
    QStringList all;
    for (const auto& [name, number] : rows)
        all += commandline::padded(name, kNameWidth) + QString::number(number).rightJustified(8);
    return all;
}

QByteArray reportCsv(const std::vector<ReportRow>& rows)
{
    const QStringList words = countWords(rows);
    QByteArray bytes = csv::row(
        QStringList{QStringLiteral("drawing"), QStringLiteral("verb"), QStringLiteral("input"),
            QStringLiteral("output"), QStringLiteral("status"), QStringLiteral("changed"),
            QStringLiteral("found"), QStringLiteral("error"), QStringLiteral("text"),
            QStringLiteral("notice-ids"), QStringLiteral("notices")} +
        words);
    for (const ReportRow& one : rows) {
        const Result& result = one.result;
        QStringList row{result.name, one.verb, result.input, result.output,
            statusWord(result.status), flag(result.changed), flag(result.found), result.error,
            result.text, joined(result.notices, "id", " "), joined(result.notices, "text", "\n")};
        for (const QString& word : words)
            row += result.counts.contains(word)
                       ? QString::number(result.counts.value(word).toDouble(), 'g', 15)
                       : QString();
        bytes += csv::row(row);
    }
    return bytes;
}

drawing::Expected<void> writeReport(const QString& path, const std::vector<ReportRow>& rows)
{
    const QByteArray bytes = csv::kByteOrderMark + reportCsv(rows);
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return tl::make_unexpected(
        drawing::Error{Texts::tr("无法写入报告“%1”：%2。").arg(path, causeOf(file))});
}

} // namespace layertool
