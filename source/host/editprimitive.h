#pragma once

#include "vneditprimitive.h"

namespace host {

/// The service "Core/EditPrimitiveServer".
OdRxObjectPtr makeEditPrimitiveServer();

} // namespace host
