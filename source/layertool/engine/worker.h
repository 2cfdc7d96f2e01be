#pragma once

#include "arguments.h"

namespace layertool {

/// The internal option that makes a process a worker.
inline constexpr char kWorkerOption[] = "--worker";

/// The exit code of a worker that runs out of memory.
inline constexpr int kOutOfMemoryExit = 87;

/// The key in an answer for the number of printed bytes that follow the answer's line.
inline constexpr char kPrintedSize[] = "printedSize";

/// The line that tells a worker about the run; `drawings` is the number of drawings in the run's
/// report.
QByteArray workerOrder(const Arguments& arguments, int drawings);

/// Reads the order and then one job per line from standard input. Answers each job on standard
/// output with a line and the printed form, until the input ends or a signal arrives. Returns the
/// exit code.
int runWorker();

} // namespace layertool
