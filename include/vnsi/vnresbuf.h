#pragma once

#include "OdString.h"
#include "vnsidef.h"

namespace vnsi {

/// One node of a linked list of result buffers.
struct VnResbuf;

/// Creates a single node of the given type; 5005 is a string. Returns null when no memory is left.
VNSI_EXPORT VnResbuf* vnsiutNewRb(int type);
/// Copies a text for use in a string node. Returns null when no memory is left.
VNSI_EXPORT wchar_t* vnsiutNewString(const OdString& text);

} // namespace vnsi
