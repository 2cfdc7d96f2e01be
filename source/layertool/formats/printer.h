#pragma once

#include "engine/job.h"
#include "verb.h"

namespace layertool {

/// Makes the text of a run's results in one format. The text of one drawing needs no other, so the
/// process that worked on it makes it; they are put together, in the drawings' order, by another.
class Printer
{
public:
    virtual ~Printer() = default;

    virtual QByteArray begin() { return {}; }
    /// The text for a drawing. Does not change the printer.
    virtual QByteArray textOf(const Result& result) const = 0;
    /// What is to be written of a drawing, `text` being what `textOf` made of it anywhere.
    virtual QByteArray added(const Result&, const QByteArray& text) { return text; }
    virtual QByteArray end() { return {}; }
};

/// What a printer is made for.
struct Printing
{
    const Verb& verb;
    const Arguments& arguments;
    int drawings = 0;    ///< How many there are to come.
    bool isFile = false; ///< The output goes to a file of its own.
};

/// The format asked for: the verb's first one where none was.
QString formatOf(const Arguments& arguments, const VerbRow& verb);

/// Text for people, CSV or JSON by the verb's columns; SARIF and JUnit of findings. Null for a
/// format nobody prints.
std::unique_ptr<Printer> makePrinter(const QString& format, const Printing& printing);

} // namespace layertool
