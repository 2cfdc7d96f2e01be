#pragma once

#include "layertranslation.h"

namespace drawing {

/// The path of the log: beside the drawing, with the same name and the extension .log.
QString translationLogPath(const QString& drawingPath);

/// The text of the log: the outcome of each mapping, the numbers of entities, and what went wrong.
QString translationLog(
    const QString& drawingPath, const TranslationReport& report, const TranslationOptions& options);

/// Writes a log. An existing log is replaced only when the new one is complete.
Expected<void> writeTranslationLog(const QString& path, const QString& text);

} // namespace drawing
