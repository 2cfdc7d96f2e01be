#pragma once

#include <QFileDevice>

namespace layertool {

/// Why a file could not be opened, read or written, as part of a sentence.
QString causeOf(const QFileDevice& file);
/// The cause for an error number of the system.
QString systemCause(int number);

} // namespace layertool
