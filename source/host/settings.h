#pragma once

#include "vnsettings.h"

#include <QString>

namespace host {

/// Sets the folder of the settings files; an empty path selects the user's configuration folder.
/// Sections in memory are first written to the old folder and then dropped.
VNSI_EXPORT void setSettingsFolder(const QString& folder);

/// Writes the sections that changed since they were last read or written. Returns false when one of
/// them could not be written.
VNSI_EXPORT bool saveSettings();

} // namespace host
