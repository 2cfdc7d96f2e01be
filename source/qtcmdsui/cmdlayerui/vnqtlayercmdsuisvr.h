#pragma once

#include "hostapi/dialogservice.h"

namespace vnsi {

/// Makes the dialogs of the layer commands by name.
class VnQtLayerCmdsUISvr : public hostapi::DialogService
{
public:
    /// A new dialog under the host's current window; names compare without regard to case. Null for
    /// an unknown name and for a dialog that cannot be built.
    VnUiModeDialogBasePtr makeDialog(const OdString& dialogName) override;
};

} // namespace vnsi
