#pragma once

#include "optiontable.h"

/// What the program says of its command line: the one table of its options, and what is made of it.
namespace selfdescription {

const std::vector<commandline::OptionRow>& options();
/// The same in the language that texts are shown in.
std::vector<commandline::OptionText> optionTexts();
QString purpose(); ///< What the program is for, a sentence.

/// The page layerbench(1), in roff.
QString manualPage();
/// The script that completes the program's command line in "bash" or "zsh"; empty for others.
QString completionScript(const QString& shell);

} // namespace selfdescription
