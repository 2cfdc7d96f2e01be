#pragma once

#include "OdaCommon.h"

extern "C" {
/// Allocates at least `size` bytes, aligned for any type. Returns null when no memory is left.
ODRX_EXPORT void* odrxAlloc(std::size_t size);
/// Frees memory that `odrxAlloc` returned. `memory` may be null.
ODRX_EXPORT void odrxFree(void* memory);
}
