#include "inputs.h"

#include "filecause.h"
#include "texts.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <cstdio>

namespace layertool {

namespace {

/// Identifies a file, which need not exist, independently of the path that leads to it.
QString identity(const QString& path)
{
    const QFileInfo info(path);
    QString canonical = info.canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return QDir(folder.isEmpty() ? info.absolutePath() : folder).absoluteFilePath(info.fileName());
}

/// The path as given, unless it contains a ".." after a link, which leads elsewhere than the text
/// suggests.
QString absolutePath(const QString& path)
{
    const QString cleaned = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    return identity(cleaned) == identity(path) ? cleaned : identity(path);
}

tl::unexpected<Error> refuse(const QString& text)
{
    return tl::make_unexpected(Error{text});
}

Expected<QStringList> readList(const QString& name)
{
    QFile list(name);
    const bool isOpen = name == QLatin1String("-") ? list.open(stdin, QIODevice::ReadOnly)
                                                   : list.open(QIODevice::ReadOnly);
    if (!isOpen)
        return refuse(Texts::tr("无法读取图形列表“%1”：%2。").arg(name, causeOf(list)));
    QByteArray bytes = list.readAll();
    if (bytes.startsWith("\xef\xbb\xbf"))
        bytes.remove(0, 3);
    QStringList paths;
    for (QByteArray line : bytes.split('\n')) {
        if (line.endsWith('\r'))
            line.chop(1);
        if (!line.trimmed().isEmpty() && !line.startsWith('#'))
            paths += QFile::decodeName(line);
    }
    return paths;
}

QStringList drawingsIn(const QString& folder, const QString& leftOut)
{
    QStringList found;
    QDirIterator walk(folder, {QStringLiteral("*.dxf")}, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        if (leftOut.isEmpty() || !identity(path).startsWith(leftOut + QLatin1Char('/')))
            found += path;
    }
    found.sort();
    return found;
}

/// Collects drawings and gives each a name.
class Planner
{
public:
    Planner(const Arguments& arguments, const VerbRow& verb)
        : m_arguments(arguments),
          m_verb(verb),
          m_out(arguments.value("out")),
          m_root(identity(arguments.value("root", QDir::currentPath())))
    {
    }

    Expected<Plan> plan(const QStringList& precious);

private:
    Expected<QStringList> paths() const;
    Expected<void> addAll(const QStringList& paths);
    Expected<void> addPairs(const QStringList& paths);
    void add(const QString& path, const QString& other);
    QString nameOf(const QString& path) const;
    Expected<void> checkOutputs(const QStringList& precious) const;

    const Arguments& m_arguments;
    const VerbRow& m_verb;
    QString m_out;
    QString m_root;
    QSet<QString> m_known;
    Plan m_plan;
};

Expected<QStringList> Planner::paths() const
{
    QStringList all = m_arguments.paths;
    for (const QString& name : m_arguments.values("list")) {
        const auto listed = readList(name);
        if (!listed)
            return tl::make_unexpected(listed.error());
        all += *listed;
    }
    return all;
}

Expected<void> Planner::addAll(const QStringList& paths)
{
    const QString leftOut = m_out.isEmpty() ? QString() : identity(m_out);
    for (const QString& path : paths) {
        if (path.isEmpty())
            return refuse(Texts::tr("图形的路径是空的。"));
        if (!QFileInfo(path).isDir()) {
            add(path, {});
            continue;
        }
        const QStringList found = drawingsIn(path, leftOut);
        if (found.isEmpty())
            m_plan.notices += Texts::tr("文件夹“%1”中没有 DXF 图形。").arg(path);
        for (const QString& drawing : found)
            add(drawing, {});
    }
    if (m_plan.jobs.empty())
        return refuse(Texts::tr("没有给出图形。"));
    return {};
}

Expected<void> Planner::addPairs(const QStringList& paths)
{
    if (paths.size() != 2)
        return refuse(Texts::tr("要给出两个图形，或两个文件夹。"));
    const QString& a = paths.at(0);
    const QString& b = paths.at(1);
    if (QFileInfo(a).isDir() != QFileInfo(b).isDir())
        return refuse(Texts::tr("“%1”与“%2”应同为图形或同为文件夹。").arg(a, b));
    if (!QFileInfo(a).isDir()) {
        add(a, b);
        return {};
    }
    QStringList names;
    for (const QString& folder : {a, b}) {
        for (const QString& path : drawingsIn(folder, {}))
            names += QDir(folder).relativeFilePath(QFileInfo(path).absoluteFilePath());
    }
    names.sort();
    names.removeDuplicates();
    for (const QString& name : names) {
        const QString first = QDir(a).filePath(name);
        const QString second = QDir(b).filePath(name);
        const bool inFirst = QFile::exists(first);
        const bool inBoth = inFirst && QFile::exists(second);
        add(inFirst ? first : second, inBoth ? second : QString());
        m_plan.jobs.back().isAlone = !inBoth;
        m_plan.jobs.back().isSecond = !inFirst;
    }
    if (names.isEmpty())
        return refuse(Texts::tr("“%1”与“%2”中没有 DXF 图形。").arg(a, b));
    return {};
}

void Planner::add(const QString& path, const QString& other)
{
    const QString known = identity(path);
    if (m_known.contains(known)) {
        m_plan.notices += Texts::tr("图形“%1”给出了不止一次，只处理一次。").arg(path);
        return;
    }
    m_known.insert(known);
    Job job;
    job.number = static_cast<int>(m_plan.jobs.size());
    job.input = absolutePath(path);
    if (!other.isEmpty())
        job.other = absolutePath(other);
    job.name = nameOf(path);
    const bool writes = editsDrawings(m_verb, m_arguments) && !m_arguments.isSet("dry-run");
    if (writes && m_arguments.isSet("in-place"))
        job.output = job.input;
    else if (writes)
        job.output = QDir::cleanPath(QDir(QFileInfo(m_out).absoluteFilePath()).filePath(job.name));
    job.keepsBackup = m_arguments.isSet("backup");
    m_plan.jobs.push_back(job);
}

QString Planner::nameOf(const QString& path) const
{
    const QString absolute = identity(path);
    if (absolute.startsWith(m_root + QLatin1Char('/')))
        return absolute.mid(m_root.size() + 1);
    return absolute.mid(1);
}

Expected<void> Planner::checkOutputs(const QStringList& precious) const
{
    if (m_arguments.isSet("in-place"))
        return {};
    QSet<QString> taken;
    QSet<QString> kept = m_known;
    for (const QString& path : precious)
        kept.insert(identity(path));
    for (const Job& job : m_plan.jobs) {
        if (!job.output.isEmpty() && kept.contains(identity(job.output)))
            return refuse(
                Texts::tr("输出“%1”会覆盖一个原文件：请换一个输出文件夹。").arg(job.output));
        // Logs, layer states and parts use the output's name without its suffix.
        const QFileInfo output(job.output);
        const QString base = output.dir().filePath(output.completeBaseName());
        if (!job.output.isEmpty() && taken.contains(base))
            return refuse(Texts::tr("“%1”与另一个图形的输出同名：请分两次处理，或用 --root "
                                    "给出它们共同的文件夹。")
                              .arg(job.input));
        taken.insert(base);
    }
    return {};
}

Expected<Plan> Planner::plan(const QStringList& precious)
{
    const auto given = paths();
    if (!given)
        return tl::make_unexpected(given.error());
    auto done = m_verb.inputs == Inputs::Pairs ? addPairs(*given) : addAll(*given);
    if (done)
        done = checkOutputs(precious);
    if (!done)
        return tl::make_unexpected(done.error());
    return std::move(m_plan);
}

} // namespace

Expected<Plan> planJobs(
    const Arguments& arguments, const VerbRow& verb, const QStringList& precious)
{
    return Planner(arguments, verb).plan(precious);
}

Expected<Shard> shardOf(const Arguments& arguments)
{
    if (!arguments.isSet("shard"))
        return Shard();
    const QStringList parts = arguments.value("shard").split(QLatin1Char('/'));
    const Shard shard{parts.value(0).toInt(), parts.value(1).toInt()};
    if (parts.size() != 2 || shard.number < 1 || shard.number > shard.count)
        return refuse(
            Texts::tr("--shard 应为 K/N，1 ≤ K ≤ N，不是“%1”。").arg(arguments.value("shard")));
    return shard;
}

std::vector<Job> jobsOf(const Shard& shard, const std::vector<Job>& jobs)
{
    std::vector<Job> part;
    for (size_t i = static_cast<size_t>(shard.number) - 1; i < jobs.size();
         i += static_cast<size_t>(shard.count))
        part.push_back(jobs[i]);
    return part;
}

} // namespace layertool
