#pragma once

#include "optiontable.h"

/// The parts of scripts that complete a program's command line: its options, what they take, words,
/// and drawings.
namespace commandline {

/// A whole script for bash. `body` sets the words to offer, as `bashWords` does.
QString bashScript(const char* program, const QString& body);
/// Sets the options to offer, the values of the option in front, and other words.
QString bashWords(const std::vector<OptionRow>& options, const QStringList& words);

/// A whole script for zsh. `body` tells what to offer, as `zshArguments` does.
QString zshScript(const char* program, const QString& body);
/// Offers options, words as the first argument, and drawings.
QString zshArguments(const std::vector<OptionText>& options, const QStringList& words);
/// A text within single quotes, for zsh's descriptions.
QString zshText(QString text);

} // namespace commandline
