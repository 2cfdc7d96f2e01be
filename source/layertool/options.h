#pragma once

#include <QStringList>

#include <vector>

namespace layertool {

/// What an option takes.
enum class OptionKind : quint8 {
    Flag,
    Text,
    File,   ///< A file that goes into the result: its contents count when work is to be skipped.
    Path,   ///< Another file's path.
    Folder, ///< A folder's path.
    Number, ///< A whole number, 0 or more.
    Count,  ///< A whole number, 1 or more.
    Choice  ///< One of the words in `choices`.
};

/// An option as it is described to the user, read from the command line and completed in a shell.
struct OptionRow
{
    const char* name; ///< Without its dashes.
    OptionKind kind;
    const char* text;         ///< A sentence, to be translated.
    const char* choices = ""; ///< Of a `Choice`: words with blanks between them.
    bool several = false;     ///< May be given more than once.
    bool shapesResult = true; ///< Whether another value can give another result for a drawing.
};

/// A part of a table of options.
struct OptionRows
{
    const OptionRow* first = nullptr;
    int count = 0;

    template <int N>
    static constexpr OptionRows of(const OptionRow (&rows)[N])
    {
        return {rows, N};
    }
    static OptionRows of(const std::vector<OptionRow>& rows)
    {
        return {rows.data(), static_cast<int>(rows.size())};
    }
    const OptionRow* begin() const { return first; }
    const OptionRow* end() const { return first + count; }
};

/// The words of a table's cell that holds several, with blanks between them.
QStringList wordsOf(const char* words);
/// What stands for the option's value in help, "FILE" say; its choices with bars between them.
/// Empty for flags.
QString valueText(const OptionRow& row);

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
