#pragma once

#include "OdString.h"
#include "RxModule.h"

#include <string_view>

// What this project's platform library has beyond the platform's interface. The module uses none of
// it.

/// Loads the library at `path`, checks that it was built for this release, makes its module object
/// and calls `initApp`. Throws `OdError` with code `eCannotLoadModule` and the cause in its
/// description.
ODRX_EXPORT OdRxModulePtr odrxLoadModule(const OdString& path);
/// Calls `uninitApp` and ends the module object. The library stays mapped: objects of its classes
/// may still be alive.
ODRX_EXPORT void odrxUnloadModule(const OdRxModulePtr& module);

/// Called with the expression, file and line of an assertion that does not hold.
using OdAssertHandler = void (*)(const char* expression, const char* file, int line);

/// Installs a handler, null for the default one, and returns the one before. The default one writes
/// to the standard error stream and ends the process in builds without NDEBUG.
ODRX_EXPORT OdAssertHandler odSetAssertHandler(OdAssertHandler handler);

/// The characters of a text, which must outlive them.
inline std::wstring_view viewOf(const OdString& text)
{
    return {text.c_str(), static_cast<std::size_t>(text.getLength())};
}
