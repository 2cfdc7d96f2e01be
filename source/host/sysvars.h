#pragma once

#include "OdString.h"
#include "vnsidef.h"

namespace host {

/// Sets a system variable. Names are compared without letter case. "TILEMODE" is initially 1.
VNSI_EXPORT void setVar(const OdString& name, OdInt16 value);

} // namespace host
