#pragma once

#include "OdString.h"
#include "vnsidef.h"

namespace vnsi {

enum VnResbufType { kVnRtString = 5005 };

/// One node of a result-buffer list; the caller owns the list.
struct VnResbuf
{
    VnResbuf* rbnext = nullptr;
    int restype = 0;
    wchar_t* rstring = nullptr; ///< Of `kVnRtString`; made by `vnsiutNewString`.
};

/// A node of the given type, not linked; null when there is no memory.
VNSI_EXPORT VnResbuf* vnsiutNewRb(int type);
/// A copy of the text for `VnResbuf::rstring`; null when there is no memory.
VNSI_EXPORT wchar_t* vnsiutNewString(const OdString& text);
/// Frees a list and the texts in it; null is allowed.
VNSI_EXPORT void vnsiutRelRb(VnResbuf* list);

} // namespace vnsi
