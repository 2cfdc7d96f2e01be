#pragma once

namespace vnsi {

/// The style codes of message boxes, numbered as desktop systems commonly do: bits 0 to 3 choose
/// the buttons, bits 4 to 7 the icon.
enum VnMessageStyle {
    kVnOk = 0,
    kVnOkCancel = 1,
    kVnYesNo = 4,
    /// Custom buttons: their texts are "btnText/0".."btnText/3" of the options, their answers 0 to
    /// 3.
    kVnCustomButtons = 6,
    kVnIconQuestion = 32,
    kVnIconWarning = 48,
    kVnIconInformation = 64
};

/// The button that closed a message box. Dialogs report their "result" with the same numbers.
enum VnMessageAnswer { kVnAnswerOk = 1, kVnAnswerCancel = 2, kVnAnswerYes = 6, kVnAnswerNo = 7 };

/// The host product's name, which is the title of many of its messages.
inline constexpr char kProductName[] = "Quenlith";

} // namespace vnsi
