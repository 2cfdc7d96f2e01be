#pragma once

#include "rows.h"

#include <QDir>

/// Adds a test row with the path of each available drawing, including those in the folders `more`.
inline void everyDrawing(const QStringList& more = {})
{
    const Rows<QString> row("path");
    for (const QString& folder : QStringList{SAMPLES, SHARED_DRAWINGS} + more) {
        for (const QFileInfo& file : QDir(folder).entryInfoList({"*.dxf"}))
            row(qPrintable(file.fileName()), file.filePath());
    }
}
