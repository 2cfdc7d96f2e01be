#pragma once

#include "OdaCommon.h"

extern "C" {
/// Memory of at least `size` bytes aligned for any type, or null when there is none.
ODRX_EXPORT void* odrxAlloc(std::size_t size);
/// Gives back what `odrxAlloc` gave; null is allowed.
ODRX_EXPORT void odrxFree(void* memory);
}

/// `odrxAlloc` that never returns null: while there is no memory the installed new-handler is
/// called and the allocation tried again; without a handler the allocation failure is raised.
ODRX_EXPORT void* odrxAllocOrThrow(std::size_t size);
