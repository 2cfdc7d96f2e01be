#include "worker.h"

#include "console.h"
#include "drawing.h"
#include "interruption.h"
#include "translationjob.h"

#include <QFile>

#include <cstdio>

int runWorker(const Options& options)
{
    auto standard = drawing::readStandard(options.standard);
    if (!standard) {
        complain(standard.error().text);
        return SomeFailed;
    }
    const TranslationJob job(options, std::move(*standard));
    drawing::Progress progress;
    const Interruption interruption(&progress.cancelled);
    QFile in;
    QFile out;
    if (!in.open(stdin, QIODevice::ReadOnly) || !out.open(stdout, QIODevice::WriteOnly))
        return SomeFailed;
    while (!progress.cancelled) {
        const QByteArray line = in.readLine();
        if (line.isEmpty())
            break;
        out.write(job.run(Job::fromLine(line), progress).toLine());
        out.flush();
    }
    return Fine;
}
