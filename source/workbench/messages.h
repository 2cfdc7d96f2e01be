#pragma once

#include "file/error.h"

#include <QString>

class QWidget;

/// The workbench's own message boxes.
namespace messages {

enum class SaveChoice { Save, Discard, Cancel };

/// Asks what becomes of unsaved changes; Esc means cancel.
SaveChoice askToSave(QWidget* parent, const QString& fileName);

/// A warning of one button.
void showWarning(QWidget* parent, const QString& title, const QString& text);

/// One sentence that names file, line (where one is to blame) and cause, each once.
QString describe(const QString& path, const drawing::Error& error);
/// Names file, line and cause of what went wrong.
void showFailure(
    QWidget* parent, const QString& title, const QString& path, const drawing::Error& error);

/// The same of a file that is cut off; whether what is whole of it shall be opened.
bool askToOpenPart(QWidget* parent, const QString& path, const drawing::Error& error);

/// Says that a command failed, why, and that what it did was taken back.
void showCommandFailure(QWidget* parent, const QString& command, const QString& cause);

void showAbout(QWidget* parent);

} // namespace messages
