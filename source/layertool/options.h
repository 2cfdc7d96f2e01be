#pragma once

#include "optiontable.h"

namespace layertool {

using commandline::dashed;
using commandline::OptionKind;
using commandline::OptionRow;
using commandline::OptionRows;
using commandline::OptionText;
using commandline::wordsOf;

/// What stands for the option's value in help, "FILE" say; its choices with bars between them.
/// Empty for flags.
QString valueText(const OptionRow& row);
/// Options in the language that texts are shown in.
OptionText optionText(const OptionRow& row);
std::vector<OptionText> optionTexts(const std::vector<OptionRow>& rows);

/// Two parts of a table as one.
std::vector<OptionRow> joined(OptionRows first, OptionRows second);

/// The options of every verb that works on drawings.
OptionRows drawingOptions();
/// Those of the verbs that change drawings, besides.
OptionRows editingOptions();
/// Of verbs with formats, whose words are the choices.
OptionRow formatOption(const char* formats);
/// Of all verbs.
OptionRow languageOption();
/// Of verbs that rename.
OptionRow mergeOption();

} // namespace layertool
