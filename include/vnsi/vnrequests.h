#pragma once

#include "SmartPtr.h"
#include "vnsidef.h"

namespace vnsi {

class VnDocument;
class VnUiProxy;

/// The user-interface proxy of a document; null for a null document.
VNSI_EXPORT VnUiProxy* grUIProxy(const OdSmartPtr<VnDocument>& document);
/// Marks the interface state `id` as left by a request. `vnedPopUIScrap` removes the mark.
VNSI_EXPORT void vnedPushUIScrap(int id);
VNSI_EXPORT void vnedPopUIScrap(int id);

/// Whether the calling thread is the user-interface thread.
VNSI_EXPORT bool vnedIsRunningInUI();
/// Whether a command is running.
VNSI_EXPORT bool vnedIsRunningInCommand();

} // namespace vnsi
