#pragma once

#include "RxObject.h"

namespace host {

/// The service "Dialog/Common": colour and file dialogs.
OdRxObjectPtr makeCommonDialogs();
/// The service "Dialog/CmdsUI": the rename dialog.
OdRxObjectPtr makeCommandDialogs();

} // namespace host
