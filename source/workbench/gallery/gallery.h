#pragma once

#include "file/error.h"

#include <QString>

#include <functional>

class MainWindow;
class QWidget;

/// Saves a picture of `widget` as the PNG file `path` and creates its folder when necessary.
drawing::Expected<void> savePicture(QWidget& widget, const QString& path);

/// Writes one PNG for model space and one for each layout into `folder`. They are numbered from 0
/// in the order of their tabs.
drawing::Expected<void> writeSheets(MainWindow& window, const QString& folder);
/// Hands the window and then, while its layer commands run, each of their dialogs to `camera`,
/// with the name of its picture. Puts samples into the window's drawing for it; `standard` is the
/// standards file that the layer translator shows.
void showEveryDialog(MainWindow& window, const QString& standard,
    const std::function<void(const QString& name, QWidget& shown)>& camera);
/// Writes one PNG for the window and one for each dialog of its layer commands into `folder`, see
/// `showEveryDialog`.
drawing::Expected<void> writeGallery(
    MainWindow& window, const QString& folder, const QString& standard);
