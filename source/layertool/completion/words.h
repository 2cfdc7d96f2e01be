#pragma once

#include "verb.h"

namespace layertool {

/// Words that may stand behind a verb besides drawings and folders.
QStringList operandWords(const VerbRow& verb);

/// The scripts that complete command lines of this program in a shell.
QString bashScript();
QString zshScript();

} // namespace layertool
