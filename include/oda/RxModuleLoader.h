#pragma once

#include "RxModule.h"

/// Loads the library at `path`, checks that it was built for this release, makes its module object
/// and calls `initApp`. Throws `OdError` with code `eCannotLoadModule` and the cause in its
/// description.
ODRX_EXPORT OdRxModulePtr odrxLoadModule(const OdString& path);
/// Calls `uninitApp` and ends the module object. The library stays mapped: objects of its classes
/// may still be alive.
ODRX_EXPORT void odrxUnloadModule(OdRxModulePtr module);
