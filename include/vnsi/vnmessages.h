#pragma once

#include "vnjson.h"

namespace vnsi {

/// Codes of message boxes, as desktop systems commonly number them: buttons in bits 0-3, icon in
/// 4-7.
enum VnMessageStyle {
    kVnOk = 0,
    kVnOkCancel = 1,
    kVnYesNo = 4,
    kVnCustomButtons = 6, ///< Texts under "btnText/0".."btnText/3" of the options; answers 0 to 3.
    kVnIconQuestion = 32,
    kVnIconWarning = 48,
    kVnIconInformation = 64
};

/// The button a message box was left with.
enum VnMessageAnswer { kVnAnswerOk = 1, kVnAnswerCancel = 2, kVnAnswerYes = 6, kVnAnswerNo = 7 };

/// Shows a message and returns the button pressed. Closing the box counts as its last button, which
/// is the cancelling one. Returns 0 where there is no user interface to ask.
VNSI_EXPORT int vnuiMessageBox(const OdString& text, const OdString& caption, int style);

/// Shows a message with options. `style` chooses the buttons, `code` the default button from 1,
/// `icon` the picture (0: the one in `style`). Returns a tree with "ControlBtn" (int): the button
/// pressed, as `VnMessageAnswer`, or the position from 0 of a custom one.
VNSI_EXPORT VnJsonPtr vnuiMessageBoxEx(const OdString& caption, const OdString& text,
    const VnJsonPtr& options, int style, int code, int icon);

} // namespace vnsi
