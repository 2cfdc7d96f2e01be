#pragma once

#include "layertranslation.h"

namespace drawing {

/// The log's place: beside the drawing, under its name with the extension .log.
QString translationLogPath(const QString& drawingPath);

/// What became of each mapping of a drawing, with the numbers of entities, and what went wrong.
QString translationLog(
    const QString& drawingPath, const TranslationReport& report, const TranslationOptions& options);

/// Writes a log; the one before it under this name is replaced when the new one is whole.
Expected<void> writeTranslationLog(const QString& path, const QString& text);

} // namespace drawing
