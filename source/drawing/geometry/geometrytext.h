#pragma once

#include <QString>
#include <QStringList>

namespace drawing {

/// What a TEXT shows: the `%%` codes resolved (degree, plus-minus, diameter, a character's number),
/// switches for underlining left out.
QString plainText(const QString& text);

/// What an MTEXT shows, line by line: formatting codes left out, fractions written with a slash.
/// Lines wider than `width` (in text heights, by `estimatedWidth`) wrap at blanks and between
/// ideographs; 0 or less = no wrapping.
QStringList plainLines(const QString& text, double width);

/// About how wide a text runs, in text heights. Fonts are not known here; the canvas measures.
double estimatedWidth(const QString& text);

} // namespace drawing
