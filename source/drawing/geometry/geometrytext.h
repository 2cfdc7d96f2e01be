#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace drawing {

/// The default distance of lines of text, in text heights.
constexpr double kLineDistance = 5.0 / 3;

/// The text that a TEXT shows. The `%%` codes are resolved (degree, plus-minus, diameter,
/// characters by number); switches for underlining are removed.
QString plainText(const QString& text);

/// A stack is a pair of texts, one above the other, within a line of text. Both are stored in the
/// line itself, separated by characters from the private use area.
namespace stack {
constexpr QChar kFraction(0xe000);  ///< Begins a stack with a bar between the two texts.
constexpr QChar kTolerance(0xe001); ///< Begins a stack without a bar.
constexpr QChar kDivider(0xe002);
constexpr QChar kEnd(0xe003);
constexpr double kHeight = 0.6; ///< The height of its texts relative to the line's height.
} // namespace stack

/// A part of a line that has one text height.
struct TextPiece
{
    QString text;
    QString below; ///< The lower text of a stack; `text` is the upper one.
    bool isStack = false;
    bool hasBar = false;
    double width = 0; ///< In text heights of the line.
};

/// The lines that an MTEXT shows. Formatting codes are removed, and stacks are encoded as described
/// at `stack`. Lines wider than `width` (in text heights, see `textWidth`) wrap at blanks and
/// between ideographs; 0 or less turns wrapping off.
QStringList plainLines(const QString& text, double width);
/// Splits a line that `plainLines` returned into its parts, in their order.
std::vector<TextPiece> piecesOf(const QString& line);

/// The width of a text in text heights. It is approximate unless `setCharacterWidths` was called.
double textWidth(const QString& text);

/// Sets the function that gives the width of a character in heights of a capital letter, measured
/// with the font that texts are shown in. It must be callable from any thread.
void setCharacterWidths(double (*widthOf)(QChar));

} // namespace drawing
