#pragma once

#include "optiontable.h"

/// The parts of shell scripts that complete a program's command line: options, their values, words,
/// and drawings.
namespace commandline {

/// What a command takes besides options.
enum class Operands : quint8 {
    Drawings, ///< Drawings and folders, after a word if there are words to offer.
    Folders,
    Words ///< Nothing but the words to offer.
};

/// A complete script for bash. `body` sets the words to offer, in the form of `bashWords`.
QString bashScript(const char* program, const QString& body);
/// Sets the words to offer: options, values of the preceding option, and other words.
QString bashWords(
    const std::vector<OptionRow>& options, const QStringList& words, Operands operands);

/// A complete script for zsh. `body` says what to offer, in the form of `zshArguments`.
QString zshScript(const char* program, const QString& body);
/// Offers options, words, and operands.
QString zshArguments(
    const std::vector<OptionText>& options, const QStringList& words, Operands operands);
/// Quotes a text with single quotes for the descriptions of zsh.
QString zshText(QString text);

} // namespace commandline
