#pragma once

#include "editjournal.h"
#include "error.h"

namespace drawing {

struct Progress;

/// Writes the edited file to `path`. An existing file is replaced only when everything has been
/// written. `size` is the approximate size in bytes and is used for the progress only.
Expected<void> writeFile(
    const EditJournal& journal, qint64 size, const QString& path, Progress* progress);

} // namespace drawing
