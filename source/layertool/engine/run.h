#pragma once

#include "arguments.h"
#include "verb.h"

namespace layertool {

enum ExitCode {
    kFine = 0,  ///< Done, and nothing found.
    kFound = 1, ///< Something found, drawings differ, or a drawing failed.
    kMisuse = 2 ///< A command line, standard or table that makes no sense; nothing was done.
};

/// Runs a verb over the drawings that the command line names. Returns the exit code: 128 and the
/// signal's number when it was interrupted.
int runVerb(const Arguments& arguments, const VerbRow& row);

/// Makes the report of an output folder from its journal, whatever became of the runs that wrote
/// it: on standard output or where --output says.
int runReport(const Arguments& arguments);

} // namespace layertool
