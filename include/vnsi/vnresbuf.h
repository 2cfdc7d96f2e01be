#pragma once

#include "OdString.h"
#include "vnsidef.h"

namespace vnsi {

/// One node of a result-buffer list.
struct VnResbuf;

/// A node of the given type, 5005 for a string, not linked; null when there is no memory.
VNSI_EXPORT VnResbuf* vnsiutNewRb(int type);
/// A copy of the text for a string node; null when there is no memory.
VNSI_EXPORT wchar_t* vnsiutNewString(const OdString& text);

} // namespace vnsi
