#pragma once

#include "verb.h"

namespace layertool {

/// Help as people read it, of the program or of one verb.
QString helpText();
QString helpText(const VerbRow& verb);

/// How the verb is called: "layertool check [OPTION...] DRAWING-OR-FOLDER...".
QString usageText(const VerbRow& verb);
/// What the exit codes mean.
QString exitCodesText();

/// What is no verb of the table but stands beside them in help: its name and what it does.
struct HelpRow
{
    const char* name;
    const char* text; ///< To be translated.
};
inline constexpr HelpRow kHelpRow{
    "help", QT_TRANSLATE_NOOP("layertool", "显示用法，或一个命令的用法。")};

} // namespace layertool
