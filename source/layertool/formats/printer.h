#pragma once

#include "engine/job.h"
#include "verb.h"

#include <QIODevice>

namespace layertool {

/// Writes the results of a run in one format, in the order of the drawings, as they come.
class Printer
{
public:
    explicit Printer(QIODevice& out) : m_out(out) {}
    virtual ~Printer() = default;

    virtual void begin() {}
    virtual void add(const Result& result) = 0;
    virtual void end() {}

protected:
    QIODevice& m_out;
};

/// What a printer is made for.
struct Printing
{
    const Verb& verb;
    const Arguments& arguments;
    int drawings = 0;    ///< How many there are to come.
    bool isFile = false; ///< The output goes to a file of its own.
};

/// Text for people, CSV or JSON by the verb's columns; SARIF and JUnit of findings. Null for a
/// format nobody prints.
std::unique_ptr<Printer> makePrinter(
    const QString& format, const Printing& printing, QIODevice& out);

} // namespace layertool
