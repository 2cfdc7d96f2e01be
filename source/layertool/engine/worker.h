#pragma once

#include "arguments.h"

namespace layertool {

/// The option that makes a process a worker; not for users.
inline constexpr char kWorkerOption[] = "--worker";

/// What a worker ends with when it is refused memory.
inline constexpr int kOutOfMemoryExit = 87;

/// The key of an answer under which stands how many bytes follow its line: what is printed of it.
inline constexpr char kPrintedSize[] = "printedSize";

/// The line that tells a worker what the run is about; `drawings` is how many it tells of.
QByteArray workerOrder(const Arguments& arguments, int drawings);

/// Takes the order and then jobs from standard input, a line each, and answers each job with a line
/// and what is to be printed on standard output, until there are no more or a signal comes. Returns
/// the exit code.
int runWorker();

} // namespace layertool
