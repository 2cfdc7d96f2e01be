#pragma once

#include "OdString.h"
#include "RxModule.h"

#include <string_view>

// What this project's platform library offers beyond the platform's published interface. The module
// uses none of it.

/// Loads the library at `path`, checks that it was built for this release, makes its module object
/// and calls `initApp`. Throws `OdError` with code `eCannotLoadModule` on failure; the description
/// tells the cause.
ODRX_EXPORT OdRxModulePtr odrxLoadModule(const OdString& path);
/// Calls `uninitApp` and ends the module object. The library stays mapped because objects of its
/// classes may still be alive.
ODRX_EXPORT void odrxUnloadModule(const OdRxModulePtr& module);

/// A function that is called with the expression, file and line of an assertion that failed.
using OdAssertHandler = void (*)(const char* expression, const char* file, int line);

/// Installs a handler for failed assertions and returns the previous one; null installs the default
/// handler. The default handler writes to the standard error stream and, in builds without NDEBUG,
/// ends the process.
ODRX_EXPORT OdAssertHandler odSetAssertHandler(OdAssertHandler handler);

/// A view of the characters of `text`. The text must outlive the view.
inline std::wstring_view viewOf(const OdString& text)
{
    return {text.c_str(), static_cast<std::size_t>(text.getLength())};
}
