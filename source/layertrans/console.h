#pragma once

#include "outcome.h"

#include <QStringList>

/// Writes a line to standard output at once.
void say(const QString& line);
/// Writes a line to standard error.
void complain(const QString& line);

/// A line of its own on a terminal, drawn over again and again; nothing where standard error is
/// none.
class ProgressLine
{
public:
    ProgressLine();
    void show(int done, int total, int failed);
    /// Takes the line away, before something else is written.
    void clear();

private:
    bool m_isTerminal = false;
    bool m_isShown = false;
};

/// One line on what became of a drawing.
QString summaryLine(const Outcome& outcome, int done, int total);

/// The sums over all drawings, and those that failed with the cause.
QStringList totalsTable(const Outcomes& outcomes);
