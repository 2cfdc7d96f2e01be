#pragma once

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

/// The button a message box was left with; also what a dialog has as its "result".
enum VnMessageAnswer { kVnAnswerOk = 1, kVnAnswerCancel = 2, kVnAnswerYes = 6, kVnAnswerNo = 7 };

/// The host product's name, the title of many of its messages.
inline constexpr char kProductName[] = "Quenlith";

} // namespace vnsi
