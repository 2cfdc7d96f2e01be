#pragma once

class QMainWindow;

/// The size and place of the main window and of its docks and bars, in the user's settings.
namespace windowplace {

/// Gives the window its place of the last time, else one of its own; in either case on a screen
/// that is there, whole. To be called when its docks and bars are made.
void restore(QMainWindow& window);
void keep(const QMainWindow& window);

} // namespace windowplace
