#pragma once

#include "vnjson.h"

namespace vnsi {

/// Shows a message and returns the button that was pressed. Closing the box counts as pressing its
/// last button, which cancels. Returns 0 when there is no user interface.
VNSI_EXPORT int vnuiMessageBox(const OdString& text, const OdString& caption, int style);

/// Shows a message with options. `style` chooses the buttons, `code` is the number of the default
/// button, counted from 1, and `icon` chooses the picture (0 takes the one in `style`). Returns a
/// tree whose int "ControlBtn" is the pressed button: 1 for OK, 6 for Yes and so on, or for a
/// custom button its position counted from 0.
VNSI_EXPORT VnJsonPtr vnuiMessageBoxEx(const OdString& caption, const OdString& text,
    const VnJsonPtr& options, int style, int code, int icon);

} // namespace vnsi
