#pragma once

#include "optiontable.h"

/// The parts of shell scripts that complete a program's command line: options, their values, words,
/// and drawings.
namespace commandline {

/// A complete script for bash. `body` sets the words to offer, in the form of `bashWords`.
QString bashScript(const char* program, const QString& body);
/// Sets the words to offer: options, values of the preceding option, and other words.
QString bashWords(const std::vector<OptionRow>& options, const QStringList& words);

/// A complete script for zsh. `body` says what to offer, in the form of `zshArguments`.
QString zshScript(const char* program, const QString& body);
/// Offers options, `words` as the first argument, and drawings.
QString zshArguments(const std::vector<OptionText>& options, const QStringList& words);
/// Quotes a text with single quotes for the descriptions of zsh.
QString zshText(QString text);

} // namespace commandline
