#pragma once

#include "vnjson.h"

namespace vnsi {

/// Shows a message and returns the button pressed. Closing the box counts as its last button, which
/// is the cancelling one. Returns 0 where there is no user interface to ask.
VNSI_EXPORT int vnuiMessageBox(const OdString& text, const OdString& caption, int style);

/// Shows a message with options. `style` chooses the buttons, `code` the default button from 1,
/// `icon` the picture (0: the one in `style`). Returns a tree with "ControlBtn" (int): the button
/// pressed, as 1 for OK, 6 for Yes, or the position from 0 of a custom one.
VNSI_EXPORT VnJsonPtr vnuiMessageBoxEx(const OdString& caption, const OdString& text,
    const VnJsonPtr& options, int style, int code, int icon);

} // namespace vnsi
