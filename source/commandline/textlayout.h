#pragma once

#include <QStringList>

namespace commandline {

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
/// A text cut to those columns.
QString wrappedParagraph(const QString& text);
/// A head with its text beside it, on as many lines as the text takes; the head has a line of its
/// own where it reaches into the text's columns.
QString entry(const QString& head, int headWidth, const QString& text);

} // namespace commandline
