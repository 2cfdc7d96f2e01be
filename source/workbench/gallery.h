#pragma once

#include "file/error.h"

#include <QString>

class MainWindow;
class QWidget;

/// Draws `widget` into the PNG file `path`, making its folder where needed.
drawing::Expected<void> savePicture(QWidget& widget, const QString& path);

/// Writes one PNG for model space and one for each layout into `folder`, numbered from 0 in the
/// order of their tabs.
drawing::Expected<void> writeSheets(MainWindow& window, const QString& folder);
/// Writes one PNG for the window and one for each dialog into `folder`.
drawing::Expected<void> writeGallery(MainWindow& window, const QString& folder);
