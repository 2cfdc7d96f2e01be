#pragma once

#include "OdString.h"
#include "vnsidef.h"

namespace host {

/// Sets a system variable; names compare without regard to case. "TILEMODE" is 1 at first.
VNSI_EXPORT void setVar(const OdString& name, OdInt16 value);

} // namespace host
