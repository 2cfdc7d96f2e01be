#include "translationjob.h"

#include "drawing.h"
#include "translationlog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

using drawing::Drawing;
using drawing::Error;
using drawing::Expected;

QString tr(const char* text)
{
    return QCoreApplication::translate("layertrans", text);
}

/// Puts a file into the place of another, in one go.
Expected<void> moveInto(const QString& from, const QString& to)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return {};
    const QString cause = QString::fromLocal8Bit(std::strerror(errno));
    return tl::make_unexpected(Error{tr("无法写入文件“%1”：%2。").arg(to, cause), 0, false});
}

/// What lies beside a drawing under its base name.
QString beside(const QString& drawing, const char* suffix)
{
    const QFileInfo info(drawing);
    return info.dir().filePath(info.completeBaseName() + QLatin1String(suffix));
}

Outcome failure(const Job& job, const Error& error)
{
    Outcome outcome(job);
    outcome.status = error.cancelled ? Outcome::Status::Cancelled : Outcome::Status::Failed;
    outcome.text = error.text;
    return outcome;
}

} // namespace

drawing::TranslationReport TranslationJob::translate(Drawing& drawing) const
{
    std::vector<drawing::LayerMapping> mappings = m_standard.mappings;
    if (m_options.mapSame) {
        auto same = drawing::sameNamedMappings(drawing, m_standard.layers, mappings);
        mappings.insert(mappings.end(), std::make_move_iterator(same.begin()),
            std::make_move_iterator(same.end()));
    }
    drawing.beginStep(tr("图层转换"));
    const auto report = drawing::translateLayers(drawing, mappings, m_options.translation);
    drawing.commitStep();
    return report.value();
}

/// Names in the staging folder are short: one that just fits into the output folder would not
/// leave room for what temporary files add to it.
Expected<void> TranslationJob::write(Drawing& drawing, const drawing::TranslationReport& report,
    const Job& job, drawing::Progress& progress) const
{
    const QString staged = QDir(job.staging).filePath(QStringLiteral("%1.dxf").arg(job.number));
    const QString states = beside(staged, ".las");
    const QString log = drawing::translationLogPath(staged);
    auto done = drawing.save(staged, &progress);
    if (done && m_options.translation.writeLog)
        done = drawing::writeTranslationLog(
            log, drawing::translationLog(job.output, report, m_options.translation));
    if (done && QFile::exists(states))
        done = moveInto(states, beside(job.output, ".las"));
    if (done && QFile::exists(log))
        done = moveInto(log, drawing::translationLogPath(job.output));
    if (done)
        done = moveInto(staged, job.output);
    for (const QString& rest : {staged, states, log})
        QFile::remove(rest);
    return done;
}

Outcome TranslationJob::run(const Job& job, drawing::Progress& progress) const
{
    const auto opened = Drawing::open(job.input, &progress);
    if (!opened)
        return failure(job, opened.error());
    const drawing::TranslationReport report = translate(**opened);
    if (const auto written = write(**opened, report, job, progress); !written)
        return failure(job, written.error());
    Outcome outcome(job);
    outcome.status = Outcome::Status::Translated;
    outcome.applied = report.appliedCount();
    outcome.leftOut = static_cast<int>(report.mappings.size()) - outcome.applied;
    outcome.moved = report.translatedCount();
    outcome.untouched = report.entities - outcome.moved;
    QStringList notices = (*opened)->openingNotices() + report.notices;
    for (const drawing::MappingResult& result : report.mappings)
        notices += result.notices;
    outcome.text = notices.join(QString());
    return outcome;
}
