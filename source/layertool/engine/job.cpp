#include "job.h"

#include <QJsonDocument>
#include <QStringList>

namespace layertool {

namespace {

template <class Record>
struct TextField
{
    const char* key;
    QString Record::*member;
};

constexpr TextField<Job> kJobTexts[] = {
    {"input", &Job::input},
    {"other", &Job::other},
    {"name", &Job::name},
    {"output", &Job::output},
    {"staging", &Job::staging},
};

constexpr TextField<Result> kResultTexts[] = {
    {"input", &Result::input},
    {"name", &Result::name},
    {"output", &Result::output},
    {"error", &Result::error},
    {"text", &Result::text},
};

constexpr struct
{
    const char* key;
    QJsonArray Result::*member;
} kResultLists[] = {{"notices", &Result::notices}, {"data", &Result::data}};

constexpr struct
{
    const char* key;
    bool Result::*member;
} kResultFlags[] = {{"found", &Result::found}, {"changed", &Result::changed}};

constexpr struct
{
    const char* key;
    FileStamp Result::*member;
} kResultStamps[] = {
    {"inputStamp", &Result::inputStamp},
    {"otherStamp", &Result::otherStamp},
};

constexpr const char* kStatusWords[] = {"done", "skipped", "failed", "cancelled"};

Result::Status statusOf(const QString& word)
{
    for (const auto status : {Result::Status::Done, Result::Status::Skipped, Result::Status::Failed,
             Result::Status::Cancelled}) {
        if (statusWord(status) == word)
            return status;
    }
    return Result::Status::Failed;
}

} // namespace

QByteArray lineOf(const QJsonObject& json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact) + '\n';
}

QString statusWord(Result::Status status)
{
    return QLatin1String(kStatusWords[static_cast<size_t>(status)]);
}

QByteArray Job::toLine() const
{
    QJsonObject json{{QStringLiteral("number"), number}, {QStringLiteral("backup"), keepsBackup},
        {QStringLiteral("proven"), isProven}, {QStringLiteral("alone"), isAlone},
        {QStringLiteral("second"), isSecond}};
    for (const auto& field : kJobTexts)
        json.insert(QLatin1String(field.key), this->*field.member);
    return lineOf(json);
}

Job Job::fromLine(const QByteArray& line)
{
    const QJsonObject json = QJsonDocument::fromJson(line).object();
    Job job;
    job.number = json.value(QLatin1String("number")).toInt();
    job.keepsBackup = json.value(QLatin1String("backup")).toBool();
    job.isAlone = json.value(QLatin1String("alone")).toBool();
    job.isSecond = json.value(QLatin1String("second")).toBool();
    job.isProven = json.value(QLatin1String("proven")).toBool();
    for (const auto& field : kJobTexts)
        job.*field.member = json.value(QLatin1String(field.key)).toString();
    return job;
}

void Result::note(const char* id, const QString& sentence)
{
    notices.append(
        QJsonObject{{QStringLiteral("id"), QLatin1String(id)}, {QStringLiteral("text"), sentence}});
}

void Result::notes(const char* id, const QStringList& sentences)
{
    for (const QString& sentence : sentences)
        note(id, sentence);
}

void Result::fail(const char* id, const QString& sentence)
{
    status = Status::Failed;
    output.clear();
    error = QLatin1String(id);
    text = sentence;
}

QJsonObject Result::toJson() const
{
    QJsonObject json{{QStringLiteral("number"), number},
        {QStringLiteral("status"), statusWord(status)}, {QStringLiteral("counts"), counts},
        {QStringLiteral("seconds"), seconds}};
    for (const auto& field : kResultTexts)
        json.insert(QLatin1String(field.key), this->*field.member);
    for (const auto& field : kResultLists)
        json.insert(QLatin1String(field.key), this->*field.member);
    for (const auto& field : kResultFlags)
        json.insert(QLatin1String(field.key), this->*field.member);
    for (const auto& field : kResultStamps) {
        if (!(this->*field.member).isNull())
            json.insert(QLatin1String(field.key), stampJson(this->*field.member));
    }
    QJsonArray files;
    for (const WrittenFile& file : written) {
        QJsonObject stamp = stampJson(file.stamp);
        stamp.insert(QStringLiteral("path"), file.path);
        files.append(stamp);
    }
    if (!files.isEmpty())
        json.insert(QStringLiteral("written"), files);
    return json;
}

Result Result::fromJson(const QJsonObject& json)
{
    Result result;
    result.number = json.value(QLatin1String("number")).toInt(-1);
    result.status = statusOf(json.value(QLatin1String("status")).toString());
    result.counts = json.value(QLatin1String("counts")).toObject();
    result.seconds = json.value(QLatin1String("seconds")).toDouble();
    for (const auto& field : kResultTexts)
        result.*field.member = json.value(QLatin1String(field.key)).toString();
    for (const auto& field : kResultLists)
        result.*field.member = json.value(QLatin1String(field.key)).toArray();
    for (const auto& field : kResultFlags)
        result.*field.member = json.value(QLatin1String(field.key)).toBool();
    for (const auto& field : kResultStamps)
        result.*field.member = stampFrom(json.value(QLatin1String(field.key)).toObject());
    for (const QJsonValue file : json.value(QLatin1String("written")).toArray())
        result.written.push_back(
            {file.toObject().value(QLatin1String("path")).toString(), stampFrom(file.toObject())});
    return result;
}

} // namespace layertool
