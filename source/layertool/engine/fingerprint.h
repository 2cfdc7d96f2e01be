#pragma once

#include "arguments.h"
#include "file/error.h"
#include "filestamp.h"
#include "options.h"

#include <vector>

namespace layertool {

/// A hash of everything besides the drawing that affects the results: the program's version, the
/// verb, the relevant options and the contents of the files that they name. Refuses a file that
/// cannot be read.
drawing::Expected<QByteArray> runFingerprint(
    const Arguments& arguments, const std::vector<OptionRow>& options);

} // namespace layertool
