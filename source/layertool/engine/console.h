#pragma once

#include <QElapsedTimer>
#include <QString>

namespace layertool {

/// Writes a text to standard output.
void say(const QString& text);
/// Writes a line to standard error.
void complain(const QString& line);
/// Writes a line to standard error that begins with the program's name.
void complainOf(const QString& sentence);

/// A progress line on a terminal that is redrawn in place. It shows nothing when standard error is
/// not a terminal or when the program is to be quiet.
class ProgressLine
{
public:
    explicit ProgressLine(bool isQuiet);
    void show(int done, int total, int failed);
    /// Removes the line before something else is written.
    void clear();

private:
    bool m_isOn = false;
    bool m_isShown = false;
    QElapsedTimer m_clock;
};

} // namespace layertool
