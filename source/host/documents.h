#pragma once

#include "coreservices.h"

namespace host {

/// Sets the drawing in the foreground; null when no drawing is open.
VNSI_EXPORT void setCurrentDocument(const vnsi::VnDocumentPtr& document);
/// The drawing in the foreground; null when no drawing is open.
VNSI_EXPORT vnsi::VnDocumentPtr currentDocument();
/// Makes a document with the published table of index colours.
VNSI_EXPORT vnsi::VnDocumentPtr makeDocument();

/// Makes the service "Core/DocMgr".
OdRxObjectPtr makeDocMgr();

} // namespace host
