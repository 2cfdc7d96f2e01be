#pragma once

#include "arguments.h"
#include "verb.h"

namespace layertool {

/// The program ends before it starts to work, with a requested text or with an error message.
struct EarlyExit
{
    int code = 0;
    QString text;
};

/// Parses the command line according to the tables of verbs and options. Refuses unknown words with
/// a sentence that names them.
tl::expected<Arguments, EarlyExit> readCommandLine(const QStringList& arguments);

/// All options of a verb, including those that it shares with others.
std::vector<OptionRow> optionsOf(const VerbRow& verb);

} // namespace layertool
