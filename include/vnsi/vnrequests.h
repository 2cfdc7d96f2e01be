#pragma once

#include "SmartPtr.h"
#include "vnsidef.h"

namespace vnsi {

class VnDocument;
class VnUiProxy;

/// The user-interface proxy of a document; null for null.
VNSI_EXPORT VnUiProxy* grUIProxy(const OdSmartPtr<VnDocument>& document);
/// Marks the interface state `id` as left by a request, until `vnedPopUIScrap`.
VNSI_EXPORT void vnedPushUIScrap(int id);
VNSI_EXPORT void vnedPopUIScrap(int id);

/// Whether the caller is on the user-interface thread.
VNSI_EXPORT bool vnedIsRunningInUI();
/// Whether a command is running.
VNSI_EXPORT bool vnedIsRunningInCommand();

} // namespace vnsi
