#include "verb.h"

#include "drawing.h"

#include <QDir>

#include <algorithm>

namespace layertool {

/// Names in the staging folder are short, because the additions of temporary files may not fit when
/// the name just fits into the output folder.
Expected<void> Verb::write(
    drawing::Drawing& drawing, const Job& job, drawing::Progress& progress, Result& result)
{
    if (job.staging.isEmpty())
        return drawing.save(job.output, &progress);
    const QString staged = QDir(job.staging).filePath(QStringLiteral("%1.dxf").arg(job.number));
    const QString states = QDir(job.staging).filePath(QStringLiteral("%1.las").arg(job.number));
    const QFileInfo output(job.output);
    result.staged = {
        {states, output.dir().filePath(output.completeBaseName() + QStringLiteral(".las"))},
        {staged, job.output}};
    return drawing.save(staged, &progress);
}

bool editsDrawings(const VerbRow& verb, const Arguments& arguments)
{
    return verb.edits &&
           (arguments.action.isEmpty() || !wordsOf(verb.readingActions).contains(arguments.action));
}

const VerbRow* findVerb(const QString& name)
{
    const auto found = std::find_if(verbs().begin(), verbs().end(),
        [&name](const VerbRow& row) { return name == QLatin1String(row.name); });
    return found == verbs().end() ? nullptr : &*found;
}

} // namespace layertool
