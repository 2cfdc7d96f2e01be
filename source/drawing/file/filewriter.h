#pragma once

#include "editjournal.h"
#include "error.h"

namespace drawing {

struct Progress;

/// Writes the edited file to `path`, which is replaced only when all is written. `size` is about
/// how much that will be, for the progress.
Expected<void> writeFile(
    const EditJournal& journal, qint64 size, const QString& path, Progress* progress);

} // namespace drawing
