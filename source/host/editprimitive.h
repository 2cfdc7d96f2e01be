#pragma once

#include "coreservices.h"

namespace host {

/// The service "Core/EditPrimitiveServer".
OdRxObjectPtr makeEditPrimitiveServer();

} // namespace host
