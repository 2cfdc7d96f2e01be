#pragma once

#include "arguments.h"
#include "engine/job.h"
#include "file/error.h"
#include "options.h"

#include <memory>
#include <vector>

namespace drawing {
class Drawing;
struct Progress;
} // namespace drawing

namespace layertool {

class Printer;
struct Printing;

using drawing::Error;
using drawing::Expected;

/// A column of a verb's table, which is also a key in its JSON.
struct Column
{
    const char* id;   ///< The English word in machine-readable formats of every language.
    const char* text; ///< The heading for people, which gets translated.
};

/// What a verb does with one drawing. The engine opens the drawing, runs the verb within one undo
/// step, has the drawing written when necessary, and makes the report.
class Verb
{
public:
    virtual ~Verb() = default;

    /// Reads what all drawings need, such as standards and tables. Called once per process. Refuses
    /// an invalid command line with a sentence.
    virtual Expected<void> prepare(const Arguments& arguments) = 0;
    /// Processes one drawing within its open step and describes in `result` what was found or
    /// changed.
    virtual Expected<void> run(drawing::Drawing& drawing, const Job& job, Result& result) = 0;
    /// Writes the changed drawing and its accompanying files to the places given in `job`. The
    /// engine moves the files in `result.staged` into place when all of them are complete. This
    /// implementation saves the drawing.
    virtual Expected<void> write(
        drawing::Drawing& drawing, const Job& job, drawing::Progress& progress, Result& result);

    virtual std::vector<Column> columns() const = 0;
    /// The rows of the answer as texts by column, for text and CSV output.
    std::vector<QStringList> rows(const Result& result) const;
    /// The rows of the answer as objects. They are made from `result.cells` if these hold the
    /// answer, otherwise taken from `result.data`.
    QJsonArray data(const Result& result) const;
    /// The verb's own printer for a format; null for the formats that all verbs share.
    virtual std::unique_ptr<Printer> printer(const QString& format, const Printing& printing) const;
};

/// How a verb takes its drawings.
enum class Inputs : quint8 {
    Drawings, ///< One by one.
    Pairs     ///< As two drawings, or two folders in which drawings of the same name are compared.
};

/// The description of a verb for the command line, the help and the engine.
struct VerbRow
{
    const char* name;
    const char* text; ///< A sentence that gets translated.
    OptionRows options;
    const char* formats; ///< Words separated by blanks; the first one is the default.
    /// Whether it changes drawings; it then takes `editingOptions` and needs an output.
    bool edits;
    std::unique_ptr<Verb> (*make)();
    const char* actions = "";        ///< The words that may follow the verb; empty for most verbs.
    const char* readingActions = ""; ///< Those of `actions` that change nothing.
    Inputs inputs = Inputs::Drawings;
    /// Set for commands that do not work on drawings. Does all their work and returns the exit
    /// code.
    int (*runAlone)(const Arguments& arguments) = nullptr;
    const char* operands =
        ""; ///< What such a command is given, as help shows it; to be translated.
};

/// All verbs in the order in which help shows them.
const std::vector<VerbRow>& verbs();
/// Whether the verb with its action changes drawings and therefore needs an output.
bool editsDrawings(const VerbRow& verb, const Arguments& arguments);
/// The verb of this name; null when there is none.
const VerbRow* findVerb(const QString& name);

template <class T>
std::unique_ptr<Verb> makeVerb()
{
    return std::make_unique<T>();
}

} // namespace layertool
