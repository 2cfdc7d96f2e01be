#pragma once

#include <QElapsedTimer>
#include <QStringList>

namespace layertool {

/// Writes a text to standard output.
void say(const QString& text);
/// Writes a line to standard error.
void complain(const QString& line);
/// The same, with the program's name in front.
void complainOf(const QString& sentence);

/// Columns a text takes on a terminal: a Chinese character takes two.
int widthOf(const QString& text);
/// The text with blanks behind it up to a width.
QString padded(const QString& text, int width);
/// Whether a line may end between two characters: at a blank, and beside Chinese characters unless
/// that would leave a closing mark in front or an opening one behind.
bool mayBreak(QChar before, QChar next);
/// The text's lines, cut where a line may end so that none is wider than `width` columns. Line ends
/// in the text stay.
QStringList wrapped(const QString& text, int width);
/// Columns that texts for people may take: those of the terminal, at most 100.
int textColumns();

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
