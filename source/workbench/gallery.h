#pragma once

#include "file/error.h"

#include <QString>

class MainWindow;
class QWidget;

/// Draws `widget` into the PNG file `path`, making its folder where needed.
drawing::Expected<void> savePicture(QWidget& widget, const QString& path);

/// Writes one PNG for the window and one for each dialog into `folder`.
drawing::Expected<void> writeGallery(MainWindow& window, const QString& folder);
