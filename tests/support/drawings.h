#pragma once

#include "rows.h"

#include <QDir>

/// A row with the path of every drawing that is at hand, and of those in more folders.
inline void everyDrawing(const QStringList& more = {})
{
    const Rows<QString> row("path");
    for (const QString& folder : QStringList{SAMPLES, SHARED_DRAWINGS} + more) {
        for (const QFileInfo& file : QDir(folder).entryInfoList({"*.dxf"}))
            row(qPrintable(file.fileName()), file.filePath());
    }
}
