#pragma once

#include "OdaCommon.h"

extern "C" {
/// Memory of at least `size` bytes aligned for any type, or null when there is none.
ODRX_EXPORT void* odrxAlloc(std::size_t size);
/// Gives back what `odrxAlloc` gave; null is allowed.
ODRX_EXPORT void odrxFree(void* memory);
}
