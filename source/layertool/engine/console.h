#pragma once

#include <QElapsedTimer>
#include <QString>

namespace layertool {

/// Writes a text to standard output.
void say(const QString& text);
/// Writes a line to standard error.
void complain(const QString& line);
/// The same, with the program's name in front.
void complainOf(const QString& sentence);

/// A line of its own on a terminal, drawn over again and again; nothing where standard error is
/// none, or when it is to be quiet.
class ProgressLine
{
public:
    explicit ProgressLine(bool isQuiet);
    void show(int done, int total, int failed);
    /// Takes the line away, before something else is written.
    void clear();

private:
    bool m_isOn = false;
    bool m_isShown = false;
    QElapsedTimer m_clock;
};

} // namespace layertool
