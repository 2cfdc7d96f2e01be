#pragma once

#include "coreservices.h"

namespace host {

/// Names the drawing in front; null when none is open.
VNSI_EXPORT void setCurrentDocument(const vnsi::VnDocumentPtr& document);
/// The drawing in front; null when none is open.
VNSI_EXPORT vnsi::VnDocumentPtr currentDocument();
/// A document with the published colour table.
VNSI_EXPORT vnsi::VnDocumentPtr makeDocument();

/// The service "Core/DocMgr".
OdRxObjectPtr makeDocMgr();

} // namespace host
