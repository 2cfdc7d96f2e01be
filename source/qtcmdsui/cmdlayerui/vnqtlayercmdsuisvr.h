#pragma once

#include "hostapi/dialogservice.h"

namespace vnsi {

/// Makes the dialogs of the layer commands by name.
class VnQtLayerCmdsUISvr : public hostapi::DialogService
{
public:
    /// Makes a new dialog under the host's current window. Names are compared without letter case.
    /// Returns null for an unknown name and when the dialog cannot be built.
    VnUiModeDialogBasePtr makeDialog(const OdString& dialogName) override;
};

} // namespace vnsi
