#pragma once

#include "vnjson.h"

namespace vnsi {

/// The value tree of one section of the user's persistent settings. Every call returns the same
/// node. What a dialog writes into it is saved when the dialog is closed. When the section's file
/// cannot be read, the section starts empty and the file is set aside.
VNSI_EXPORT VnJsonPtr vn_user_config(const OdString& section);

/// The value of a host system variable; 0 for an unknown name.
VNSI_EXPORT OdInt16 getVar(const OdString& name);

} // namespace vnsi
