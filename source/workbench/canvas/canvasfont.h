#pragma once

#include <QFont>

/// The font for the texts of drawings, whatever fonts they name.
QFont canvasFont(int pixelSize);

/// The width of a character of this font in heights of a capital letter. May be called on any
/// thread.
double canvasCharacterWidth(QChar character);
