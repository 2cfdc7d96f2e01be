#pragma once

#include "file/error.h"

#include <QString>

class QWidget;

/// The workbench's own message boxes.
namespace messages {

enum class SaveChoice { Save, Discard, Cancel };

/// Asks what to do with unsaved changes. Esc means cancel.
SaveChoice askToSave(QWidget* parent, const QString& fileName);

/// Shows a warning with one button.
void showWarning(QWidget* parent, const QString& title, const QString& text);

/// One sentence that names the file, the line (if there is one) and the cause, each once.
QString describe(const QString& path, const drawing::Error& error);
/// Shows an error message that names the file, the line and the cause.
void showFailure(
    QWidget* parent, const QString& title, const QString& path, const drawing::Error& error);

/// Shows the error of a truncated file and asks whether to open its intact part.
bool askToOpenPart(QWidget* parent, const QString& path, const drawing::Error& error);

/// Says that a command failed, why it failed, and that its changes were undone.
void showCommandFailure(QWidget* parent, const QString& command, const QString& cause);

void showAbout(QWidget* parent);

} // namespace messages
