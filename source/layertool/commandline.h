#pragma once

#include "arguments.h"
#include "verb.h"

namespace layertool {

/// Ends the program before it began: with a text asked for, or with a refusal.
struct EarlyExit
{
    int code = 0;
    QString text;
};

/// Reads the command line by the tables of verbs and options. Refuses, with a sentence that names
/// the word, what they do not know.
tl::expected<Arguments, EarlyExit> readCommandLine(const QStringList& arguments);

/// The options a verb takes, with those it shares with others.
std::vector<OptionRow> optionsOf(const VerbRow& verb);

} // namespace layertool
