#pragma once

#include <QFileDevice>

namespace layertool {

/// Why a file could not be opened, read or written, for the middle of a sentence.
QString causeOf(const QFileDevice& file);
/// The same for an error number of the system.
QString systemCause(int number);

} // namespace layertool
