#pragma once

#include "arguments.h"
#include "verb.h"

namespace layertool {

enum ExitCode {
    kFine = 0,  ///< The work was done and nothing was found.
    kFound = 1, ///< Something was found, drawings differ, or a drawing failed.
    kMisuse = 2 ///< The command line, a standard or a table is invalid; nothing was done.
};

/// Runs a verb on the drawings that the command line names. Returns the exit code, which is 128
/// plus the signal's number after an interruption.
int runVerb(const Arguments& arguments, const VerbRow& row);

/// Makes the report of an output folder from its journal, however its runs ended. Writes it to
/// standard output or to the file of --output.
int runReport(const Arguments& arguments);

} // namespace layertool
