#include "journal.h"

#include "filecause.h"
#include "texts.h"

#include <QDir>
#include <QJsonDocument>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <tuple>
#include <unistd.h>

namespace layertool {

namespace {

constexpr int kVersion = 1;

QByteArray lineFrom(const JournalEntry& entry)
{
    QJsonObject json = entry.result.toJson();
    json.insert(QStringLiteral("version"), kVersion);
    json.insert(QStringLiteral("run"), QString::fromLatin1(entry.run));
    json.insert(QStringLiteral("verb"), entry.verb.name);
    json.insert(QStringLiteral("edits"), entry.verb.edits);
    json.insert(QStringLiteral("when"), QString::number(entry.when));
    return lineOf(json);
}

JournalEntry entryFrom(const QJsonObject& json)
{
    JournalEntry entry;
    entry.result = Result::fromJson(json);
    entry.run = json.value(QLatin1String("run")).toString().toLatin1();
    entry.verb = {
        json.value(QLatin1String("verb")).toString(), json.value(QLatin1String("edits")).toBool()};
    entry.when = json.value(QLatin1String("when")).toString().toLongLong();
    return entry;
}

QString keyOf(const QString& input, const RunVerb& verb)
{
    return (verb.edits ? QString() : verb.name) + QLatin1Char('\n') + input;
}

/// Appends one line in a single write. Other processes may append at the same time, and a killed
/// process may have left an incomplete line before it.
int appendLine(int file, const QByteArray& line)
{
    if (::flock(file, LOCK_EX) != 0)
        return errno;
    char last = '\n';
    const off_t size = ::lseek(file, 0, SEEK_END);
    if (size > 0 && ::pread(file, &last, 1, size - 1) != 1)
        return errno;
    const QByteArray bytes = last == '\n' ? line : '\n' + line;
    const ssize_t written = ::write(file, bytes.constData(), static_cast<size_t>(bytes.size()));
    return written == bytes.size() ? 0 : written < 0 ? errno : ENOSPC;
}

} // namespace

QString Journal::folderOf(const QString& outFolder)
{
    return QDir(outFolder).filePath(QStringLiteral(".layertool"));
}

drawing::Expected<Journal> Journal::open(const QString& outFolder, const RunVerb& verb)
{
    if (!QDir().mkpath(folderOf(outFolder)))
        return tl::make_unexpected(
            drawing::Error{Texts::tr("无法在输出文件夹“%1”中写日志。").arg(outFolder)});
    auto journal = read(outFolder);
    if (!journal) {
        journal = Journal();
        journal->m_path = QDir(folderOf(outFolder)).filePath(QStringLiteral("journal.jsonl"));
    }
    journal->m_verb = verb;
    return journal;
}

drawing::Expected<Journal> Journal::read(const QString& outFolder)
{
    Journal journal;
    journal.m_path = QDir(folderOf(outFolder)).filePath(QStringLiteral("journal.jsonl"));
    QFile file(journal.m_path);
    if (!file.open(QIODevice::ReadOnly))
        return tl::make_unexpected(
            drawing::Error{Texts::tr("无法读取日志“%1”：%2。").arg(journal.m_path, causeOf(file))});
    journal.load(file.readAll());
    return journal;
}

void Journal::load(const QByteArray& bytes)
{
    for (const QByteArray& line : bytes.split('\n')) {
        const QJsonObject json = QJsonDocument::fromJson(line).object();
        if (json.value(QLatin1String("version")).toInt() == kVersion)
            take(entryFrom(json));
    }
}

/// Keeps the entry with the later time. The order of the lines does not matter, because shards on
/// several machines append independently.
void Journal::take(const JournalEntry& entry)
{
    const QString key = keyOf(entry.result.input, entry.verb);
    const auto known = m_newest.find(key);
    if (known == m_newest.end())
        m_newest.insert(key, entry);
    else if (known->when <= entry.when)
        *known = entry;
}

const JournalEntry* Journal::find(const QString& input) const
{
    const auto known = m_newest.find(keyOf(input, m_verb));
    return known == m_newest.end() ? nullptr : &*known;
}

std::vector<JournalEntry> Journal::entries() const
{
    std::vector<JournalEntry> all;
    all.reserve(static_cast<size_t>(m_newest.size()));
    for (const JournalEntry& entry : m_newest)
        all.push_back(entry);
    std::sort(all.begin(), all.end(), [](const JournalEntry& a, const JournalEntry& b) {
        return std::tie(a.result.name, a.result.input, a.verb.name) <
               std::tie(b.result.name, b.result.input, b.verb.name);
    });
    return all;
}

bool Journal::proves(const Job& job, const QByteArray& run) const
{
    const JournalEntry* const entry = find(job.input);
    if (!entry || entry->result.status != Result::Status::Done || entry->run != run ||
        entry->result.name != job.name)
        return false;
    const auto isSame = [](const QString& path, const FileStamp& stamp) {
        return path.isEmpty() ? stamp.isNull() : stampOf(path) == stamp;
    };
    const Result& done = entry->result;
    return isSame(job.input, done.inputStamp) && isSame(job.other, done.otherStamp) &&
           (job.output.isEmpty() || !done.written.empty()) &&
           std::all_of(done.written.begin(), done.written.end(),
               [&isSame](const WrittenFile& file) { return isSame(file.path, file.stamp); });
}

drawing::Expected<void> Journal::append(const JournalEntry& entry)
{
    const int file = ::open(
        QFile::encodeName(m_path).constData(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    const int failed = file < 0 ? errno : appendLine(file, lineFrom(entry));
    if (file >= 0)
        ::close(file);
    if (failed != 0)
        return tl::make_unexpected(
            drawing::Error{Texts::tr("无法写入日志“%1”：%2。").arg(m_path, systemCause(failed))});
    take(entry);
    return {};
}

} // namespace layertool
