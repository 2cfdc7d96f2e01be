#pragma once

#include "arguments.h"

namespace layertool {

/// The option that makes a process a worker; not for users.
inline constexpr char kWorkerOption[] = "--worker";

/// What a worker ends with when it is refused memory.
inline constexpr int kOutOfMemoryExit = 87;

/// Takes the command line and then jobs from standard input, a line each, and answers each job with
/// a line on standard output, until there are no more or a signal comes. Returns the exit code.
int runWorker();

} // namespace layertool
