#pragma once

#include "vnjson.h"

namespace vnsi {

/// The value tree of a persisted section of the user's settings; the same node at every call. What
/// a dialog writes into it is kept when the dialog is closed. A section whose file cannot be read
/// starts empty, and the file is set aside.
VNSI_EXPORT VnJsonPtr vn_user_config(const OdString& section);

/// The value of a host system variable; 0 for one that is not known.
VNSI_EXPORT OdInt16 getVar(const OdString& name);

} // namespace vnsi
