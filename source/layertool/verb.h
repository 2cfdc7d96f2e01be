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

/// The columns of a verb's table; also the keys of its JSON.
struct Column
{
    const char* id;   ///< The English word that machine formats use in every language.
    const char* text; ///< The heading people see, to be translated.
};

/// What a verb does with one drawing. The engine opens the drawing, has the verb work on it within
/// one undo step, has it written where that is wanted, and makes the report.
class Verb
{
public:
    virtual ~Verb() = default;

    /// Reads what goes for all drawings (standards, tables), once a process. Refuses a command line
    /// that makes no sense with a sentence.
    virtual Expected<void> prepare(const Arguments& arguments) = 0;
    /// Works on one drawing, in its open step, and says in `result` what was found or changed.
    virtual Expected<void> run(drawing::Drawing& drawing, const Job& job, Result& result) = 0;
    /// Writes the changed drawing, and what belongs beside it, where `job` says. The engine moves
    /// the files in `result.staged` to their places when all are whole. Saves the drawing here.
    virtual Expected<void> write(
        drawing::Drawing& drawing, const Job& job, drawing::Progress& progress, Result& result);

    virtual std::vector<Column> columns() const = 0;
    /// The rows of the answer as texts by the columns, for text and CSV.
    std::vector<QStringList> rows(const Result& result) const;
    /// The same as objects, `result.data` being made of `result.cells` where these hold the answer.
    QJsonArray data(const Result& result) const;
    /// A printer of the verb's own for a format; null for those that every verb has.
    virtual std::unique_ptr<Printer> printer(const QString& format, const Printing& printing) const;
};

/// How a verb takes drawings.
enum class Inputs : quint8 {
    Drawings, ///< Each by itself.
    Pairs     ///< Two drawings, or two folders whose drawings of one name are held together.
};

/// What a verb is to the command line, to help and to the engine.
struct VerbRow
{
    const char* name;
    const char* text; ///< A sentence, to be translated.
    OptionRows options;
    const char* formats; ///< Words with blanks between them, the first one is the default.
    bool edits;          ///< Changes drawings: takes `editingOptions`, needs somewhere to write.
    std::unique_ptr<Verb> (*make)();
    const char* actions = "";        ///< The words that may follow the verb; empty for most.
    const char* readingActions = ""; ///< Those of `actions` that change nothing.
    Inputs inputs = Inputs::Drawings;
    /// Of commands that work on no drawings: does all there is to do and returns the exit code.
    int (*runAlone)(const Arguments& arguments) = nullptr;
    const char* operands =
        ""; ///< What such a command is given, as help shows it; to be translated.
};

/// All verbs, in the order in which help shows them.
const std::vector<VerbRow>& verbs();
/// Whether the verb, with its action, changes drawings and needs somewhere to write.
bool editsDrawings(const VerbRow& verb, const Arguments& arguments);
/// Null for a name that none has.
const VerbRow* findVerb(const QString& name);

template <class T>
std::unique_ptr<Verb> makeVerb()
{
    return std::make_unique<T>();
}

} // namespace layertool
