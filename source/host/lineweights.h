#pragma once

#include "vnsidef.h"

#include <QString>

namespace host {

/// What a lineweight is called, in hundredths of a millimetre; -1 ByLayer, -2 ByBlock, -3 default.
VNSI_EXPORT QString lineweightText(int weight);

} // namespace host
