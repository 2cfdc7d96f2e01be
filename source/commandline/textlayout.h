#pragma once

#include <QStringList>

namespace commandline {

/// The number of terminal columns that a text takes. A Chinese character takes two.
int widthOf(const QString& text);
/// The text, padded with blanks to a width.
QString padded(const QString& text, int width);
/// Whether a line may be broken between two characters: at a blank, and next to a Chinese
/// character, unless a closing mark would begin a line or an opening mark would end one.
bool mayBreak(QChar before, QChar next);
/// Breaks a text into lines that are at most `width` columns wide where possible. Existing line
/// breaks are kept.
QStringList wrapped(const QString& text, int width);
/// The number of columns for texts that people read: the terminal's width, but at most 100.
int textColumns();
/// Wraps a text at `textColumns`.
QString wrappedParagraph(const QString& text);
/// A heading with its text beside it, on as many lines as the text needs. A heading that is too
/// long for its column gets a line of its own.
QString entry(const QString& head, int headWidth, const QString& text);

} // namespace commandline
