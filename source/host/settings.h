#pragma once

#include "vnsettings.h"

#include <QString>

namespace host {

/// Chooses the folder of the settings files instead of the user's configuration folder; empty for
/// that. Sections that are in memory are written to the old folder and forgotten.
VNSI_EXPORT void setSettingsFolder(const QString& folder);

/// Writes the sections that changed since they were last read or written. Returns false when one
/// could not be written.
VNSI_EXPORT bool saveSettings();

} // namespace host
