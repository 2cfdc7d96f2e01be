#pragma once

#include "file/error.h"

#include <QString>

class MainWindow;
class QWidget;

/// Saves a picture of `widget` as the PNG file `path` and creates its folder when necessary.
drawing::Expected<void> savePicture(QWidget& widget, const QString& path);

/// Writes one PNG for model space and one for each layout into `folder`. They are numbered from 0
/// in the order of their tabs.
drawing::Expected<void> writeSheets(MainWindow& window, const QString& folder);
/// Writes one PNG for the window and one for each dialog of its layer commands into `folder`. Puts
/// samples into the window's drawing for it; `standard` is the standards file that the layer
/// translator shows.
drawing::Expected<void> writeGallery(
    MainWindow& window, const QString& folder, const QString& standard);
