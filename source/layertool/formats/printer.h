#pragma once

#include "engine/job.h"
#include "verb.h"

namespace layertool {

/// Prints the results of a run in one format. The text of one drawing does not depend on others, so
/// the process that handled the drawing makes it. Another process joins the texts in the order of
/// the drawings.
class Printer
{
public:
    virtual ~Printer() = default;

    virtual QByteArray begin() { return {}; }
    /// The text for one drawing. Does not change the printer.
    virtual QByteArray textOf(const Result& result) const = 0;
    /// The bytes to write for a drawing. `text` is the result of `textOf`, possibly from another
    /// process.
    virtual QByteArray added(const Result&, const QByteArray& text) { return text; }
    virtual QByteArray end() { return {}; }
};

/// The parameters of a printer.
struct Printing
{
    const Verb& verb;
    const Arguments& arguments;
    int drawings = 0;    ///< The number of drawings to expect.
    bool isFile = false; ///< Whether the output goes to a separate file.
};

/// The requested format, or the verb's first format when none was requested.
QString formatOf(const Arguments& arguments, const VerbRow& verb);

/// Makes a printer for text, CSV or JSON with the verb's columns, or for SARIF or JUnit with
/// findings. Returns null for an unknown format.
std::unique_ptr<Printer> makePrinter(const QString& format, const Printing& printing);

} // namespace layertool
