#pragma once

#include "vnresbuf.h"

namespace vnsi {

/// One node of a linked list of result buffers. The caller owns the list.
struct VnResbuf
{
    VnResbuf* rbnext = nullptr;
    int restype = 0;
    wchar_t* rstring = nullptr; ///< Only set in a string node; made by `vnsiutNewString`.
};

/// Frees a list and all its texts. `list` may be null.
VNSI_EXPORT void vnsiutRelRb(VnResbuf* list);

} // namespace vnsi
