#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace drawing {

/// What a TEXT shows: the `%%` codes resolved (degree, plus-minus, diameter, a character's number),
/// switches for underlining left out.
QString plainText(const QString& text);

/// Two texts one above the other within a line of text. Both stand in the line itself, between
/// characters that are nobody's own.
namespace stack {
constexpr QChar kFraction(0xe000);  ///< Begins one with a bar between the two.
constexpr QChar kTolerance(0xe001); ///< Begins one without.
constexpr QChar kDivider(0xe002);
constexpr QChar kEnd(0xe003);
constexpr double kHeight = 0.6; ///< Of its texts, in the line's.
} // namespace stack

/// A part of a line that is written at one height.
struct TextPiece
{
    QString text;
    QString below; ///< Of a stack; `text` is above then.
    bool isStack = false;
    bool hasBar = false;
    double width = 0; ///< In the line's text heights.
};

/// What an MTEXT shows, line by line: formatting codes left out, stacks as `stack` has them.
/// Lines wider than `width` (in text heights, by `textWidth`) wrap at blanks and between
/// ideographs; 0 or less = no wrapping.
QStringList plainLines(const QString& text, double width);
/// The parts of such a line in their order.
std::vector<TextPiece> piecesOf(const QString& line);

/// How wide a text runs, in text heights: by the widths of characters that were set, else about.
double textWidth(const QString& text);

/// Sets how wide characters are, in heights of a capital letter, as the font has them that texts
/// are shown in. The function must be good on any thread.
void setCharacterWidths(double (*widthOf)(QChar));

} // namespace drawing
