#pragma once

#include <QStringList>

#include <vector>

namespace commandline {

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

/// An option in the user's language.
struct OptionText
{
    OptionRow row;
    QString value; ///< What stands for its value, "FILE" say; empty for flags.
    QString text;  ///< A sentence.
};

/// The words of a table's cell that holds several, with blanks between them.
QStringList wordsOf(const char* words);
/// The option as it is typed.
QString dashed(const OptionRow& row);

} // namespace commandline
