#include "outcome.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

template <class Record>
struct TextField
{
    const char* key;
    QString Record::*member;
};

template <class Record>
struct NumberField
{
    const char* key;
    int Record::*member;
};

constexpr TextField<Job> kJobTexts[] = {
    {"input", &Job::input},
    {"output", &Job::output},
    {"staging", &Job::staging},
};
constexpr NumberField<Job> kJobNumbers[] = {{"number", &Job::number}};

constexpr TextField<Outcome> kOutcomeTexts[] = {
    {"input", &Outcome::input},
    {"output", &Outcome::output},
    {"text", &Outcome::text},
};
constexpr NumberField<Outcome> kOutcomeNumbers[] = {
    {"number", &Outcome::number},
    {"applied", &Outcome::applied},
    {"leftOut", &Outcome::leftOut},
    {"moved", &Outcome::moved},
    {"untouched", &Outcome::untouched},
};
constexpr char kStatus[] = "status";

template <class Record, size_t texts, size_t numbers>
QJsonObject toJson(const Record& record, const TextField<Record> (&textFields)[texts],
    const NumberField<Record> (&numberFields)[numbers])
{
    QJsonObject json;
    for (const auto& field : textFields)
        json.insert(QLatin1String(field.key), record.*field.member);
    for (const auto& field : numberFields)
        json.insert(QLatin1String(field.key), record.*field.member);
    return json;
}

template <class Record, size_t texts, size_t numbers>
QJsonObject read(const QByteArray& line, Record& record,
    const TextField<Record> (&textFields)[texts],
    const NumberField<Record> (&numberFields)[numbers])
{
    const QJsonObject json = QJsonDocument::fromJson(line).object();
    for (const auto& field : textFields)
        record.*field.member = json.value(QLatin1String(field.key)).toString();
    for (const auto& field : numberFields)
        record.*field.member = json.value(QLatin1String(field.key)).toInt();
    return json;
}

QByteArray lineOf(const QJsonObject& json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

QByteArray Job::toLine() const
{
    return lineOf(toJson(*this, kJobTexts, kJobNumbers));
}

Job Job::fromLine(const QByteArray& line)
{
    Job job;
    read(line, job, kJobTexts, kJobNumbers);
    return job;
}

QByteArray Outcome::toLine() const
{
    QJsonObject json = toJson(*this, kOutcomeTexts, kOutcomeNumbers);
    json.insert(QLatin1String(kStatus), static_cast<int>(status));
    return lineOf(json);
}

Outcome Outcome::fromLine(const QByteArray& line)
{
    Outcome outcome;
    const QJsonObject json = read(line, outcome, kOutcomeTexts, kOutcomeNumbers);
    const int failed = static_cast<int>(Status::Failed);
    outcome.status = static_cast<Status>(json.value(QLatin1String(kStatus)).toInt(failed));
    return outcome;
}

QString statusText(Outcome::Status status)
{
    constexpr const char* kTexts[] = {"已转换", "已跳过", "失败", "已中断"};
    return QCoreApplication::translate("layertrans", kTexts[static_cast<size_t>(status)]);
}

Totals Totals::of(const Outcomes& outcomes)
{
    Totals totals;
    for (const Outcome& outcome : outcomes) {
        ++totals.drawings;
        totals.translated += outcome.status == Outcome::Status::Translated ? 1 : 0;
        totals.skipped += outcome.status == Outcome::Status::Skipped ? 1 : 0;
        totals.failed += outcome.status == Outcome::Status::Failed ? 1 : 0;
        totals.cancelled += outcome.status == Outcome::Status::Cancelled ? 1 : 0;
        totals.applied += outcome.applied;
        totals.leftOut += outcome.leftOut;
        totals.moved += outcome.moved;
        totals.untouched += outcome.untouched;
    }
    return totals;
}
