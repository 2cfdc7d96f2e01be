#pragma once

#include "vnsidef.h"

#include <QString>

namespace host {

/// The text of a lineweight in hundredths of a millimetre, or of -1 (ByLayer), -2 (ByBlock), -3
/// (default).
VNSI_EXPORT QString lineweightText(int weight);

} // namespace host
