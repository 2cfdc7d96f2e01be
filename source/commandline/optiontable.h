#pragma once

#include <QStringList>

#include <vector>

namespace commandline {

/// The kind of value that an option takes.
enum class OptionKind : quint8 {
    Flag,
    Text,
    File,   ///< A file that affects the result, so its contents decide whether work can be skipped.
    Path,   ///< The path of another file.
    Folder, ///< The path of a folder.
    Number, ///< A whole number, 0 or more.
    Count,  ///< A whole number, 1 or more.
    Choice  ///< One of the words in `choices`.
};

/// An option as help, parsing and shell completion need it.
struct OptionRow
{
    const char* name; ///< Without the leading dashes.
    OptionKind kind;
    const char* text;         ///< A sentence that gets translated.
    const char* choices = ""; ///< For a `Choice`, the words, separated by blanks.
    bool several = false;     ///< Whether it may be given more than once.
    bool shapesResult = true; ///< Whether its value can affect the result for a drawing.
    char letter = 0;          ///< The short form, where there is one.
};

/// A section of a table of options.
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

/// An option with its texts in the user's language.
struct OptionText
{
    OptionRow row;
    QString value; ///< The placeholder for its value, such as "FILE"; empty for flags.
    QString text;  ///< A sentence.
};

/// Splits the cell of a table that holds several words, separated by blanks.
QStringList wordsOf(const char* words);
/// The option as it is typed.
QString dashed(const OptionRow& row);

} // namespace commandline
