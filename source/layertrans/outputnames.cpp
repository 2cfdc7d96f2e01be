#include "outputnames.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("layertrans", text);
}

/// What the file is known by, whatever way leads to it; also of one that is not there.
QString identity(const QString& path)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return QDir(folder.isEmpty() ? info.absolutePath() : folder).absoluteFilePath(info.fileName());
}

/// Hands out base names: logs and layer states lie beside a drawing under its base name alone.
class Names
{
public:
    explicit Names(const QStringList& drawings)
    {
        for (const QString& path : drawings)
            m_wanted.insert(keyOf(QFileInfo(path).completeBaseName()));
    }

    QString take(const QFileInfo& drawing)
    {
        const QString base = drawing.completeBaseName();
        QString name = base;
        int& number = m_last[keyOf(base)];
        while (++number > 1) {
            name = QStringLiteral("%1~%2").arg(base).arg(number);
            // Another drawing may be called so by itself.
            if (!m_wanted.contains(keyOf(name)))
                break;
        }
        const QString suffix = drawing.suffix();
        return suffix.isEmpty() ? name : name + QLatin1Char('.') + suffix;
    }

private:
    static QString keyOf(const QString& name) { return name.toCaseFolded(); }

    QSet<QString> m_wanted;
    QHash<QString, int> m_last;
};

} // namespace

tl::expected<Plan, QString> planOutputs(
    const QStringList& drawings, const QString& out, const QStringList& precious)
{
    Plan plan;
    Names names(drawings);
    QSet<QString> inputs;
    const QDir folder(out);
    for (const QString& path : drawings) {
        const QString known = identity(path);
        if (inputs.contains(known)) {
            plan.notices += tr("图形“%1”给出了不止一次，只转换一次。").arg(path);
            continue;
        }
        inputs.insert(known);
        Job job;
        job.number = static_cast<int>(plan.jobs.size());
        job.input = path;
        job.output = folder.filePath(names.take(QFileInfo(path)));
        plan.jobs.push_back(job);
    }
    QSet<QString> kept = inputs;
    for (const QString& path : precious)
        kept.insert(identity(path));
    for (const Job& job : plan.jobs) {
        if (kept.contains(identity(job.output)))
            return tl::unexpected(
                tr("输出“%1”会覆盖一个原文件：请换一个输出文件夹。").arg(job.output));
    }
    return plan;
}
