#pragma once

#include <QFont>

/// The font that texts of drawings are shown in, whatever fonts these name.
QFont canvasFont(int pixelSize);

/// How wide a character of it is, in heights of its capital letters. Good on any thread.
double canvasCharacterWidth(QChar character);
