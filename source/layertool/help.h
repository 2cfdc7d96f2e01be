#pragma once

#include "verb.h"

namespace layertool {

/// The help text of the program or of one verb.
QString helpText();
QString helpText(const VerbRow& verb);

/// The usage line of a verb: "layertool check [OPTION...] DRAWING-OR-FOLDER...".
QString usageText(const VerbRow& verb);
/// Explains the exit codes.
QString exitCodesText();

/// An entry of the help that is not in the table of verbs: its name and what it does.
struct HelpRow
{
    const char* name;
    const char* text; ///< Gets translated.
};
inline constexpr HelpRow kHelpRow{
    "help", QT_TRANSLATE_NOOP("layertool", "显示用法，或一个命令的用法。")};

} // namespace layertool
