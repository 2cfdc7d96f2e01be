#pragma once

#include "options.h"

/// Takes jobs from standard input, a line each, and answers each with a line on standard output,
/// until there are no more or a signal comes. Returns the exit code.
int runWorker(const Options& options);
