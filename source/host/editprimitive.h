#pragma once

#include "coreservices.h"

namespace host {

/// Makes the service "Core/EditPrimitiveServer".
OdRxObjectPtr makeEditPrimitiveServer();

} // namespace host
