#pragma once

#include "optiontable.h"

namespace layertool {

using commandline::dashed;
using commandline::OptionKind;
using commandline::OptionRow;
using commandline::OptionRows;
using commandline::OptionText;
using commandline::wordsOf;

/// The placeholder for the option's value in help, such as "FILE"; for a choice its words,
/// separated by bars. Empty for flags.
QString valueText(const OptionRow& row);
/// Translates the texts of options to the user's language.
OptionText optionText(const OptionRow& row);
std::vector<OptionText> optionTexts(const std::vector<OptionRow>& rows);

/// Joins two sections of a table.
std::vector<OptionRow> joined(OptionRows first, OptionRows second);

/// The options of every verb that works on drawings.
OptionRows drawingOptions();
/// The additional options of verbs that change drawings.
OptionRows editingOptions();
/// The option of verbs with several output formats; the words of `formats` are its choices.
OptionRow formatOption(const char* formats);
/// The option of all verbs.
OptionRow languageOption();
/// The option of verbs that rename layers.
OptionRow mergeOption();

} // namespace layertool
