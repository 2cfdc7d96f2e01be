#pragma once

#include "RxObject.h"

namespace host {

/// Makes the service "Dialog/Common", which provides the colour and file dialogs.
OdRxObjectPtr makeCommonDialogs();
/// Makes the service "Dialog/CmdsUI", which provides the rename dialog.
OdRxObjectPtr makeCommandDialogs();

} // namespace host
