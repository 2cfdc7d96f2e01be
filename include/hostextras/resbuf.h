#pragma once

#include "vnresbuf.h"

namespace vnsi {

/// One node of a result-buffer list; the caller owns the list.
struct VnResbuf
{
    VnResbuf* rbnext = nullptr;
    int restype = 0;
    wchar_t* rstring = nullptr; ///< Of a string node; made by `vnsiutNewString`.
};

/// Frees a list and the texts in it; null is allowed.
VNSI_EXPORT void vnsiutRelRb(VnResbuf* list);

} // namespace vnsi
