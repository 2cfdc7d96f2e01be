#pragma once

#include "arguments.h"
#include "file/error.h"
#include "filestamp.h"
#include "options.h"

#include <vector>

namespace layertool {

/// One hash of all that shapes the results besides the drawing: the program's version, the verb,
/// the options that matter and the contents of the files they name. Refuses a file that cannot be
/// read.
drawing::Expected<QByteArray> runFingerprint(
    const Arguments& arguments, const std::vector<OptionRow>& options);

} // namespace layertool
