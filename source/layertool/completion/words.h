#pragma once

#include "shellcompletion.h"
#include "verb.h"

namespace layertool {

/// The words that may follow a verb besides drawings and folders.
QStringList operandWords(const VerbRow& verb);

/// What the verb takes besides these words.
commandline::Operands operandsOf(const VerbRow& verb);

/// Scripts that complete this program's command lines, one for each shell.
QString bashScript();
QString zshScript();

} // namespace layertool
