#pragma once

#include "vnsidef.h"

class QWidget;

namespace host {

/// Names the program's main window, under which dialogs stand when no other window is active. The
/// caller keeps it; null takes it back.
VNSI_EXPORT void setMainWindow(QWidget* window);

/// The window that a dialog made now belongs to: the modal one in front, else the active one, else
/// the main window; null when there is none and off the user-interface thread.
VNSI_EXPORT QWidget* currentWindow();

/// Makes another window the current one while it lives; null changes nothing.
class CurrentWindowScope
{
public:
    explicit CurrentWindowScope(QWidget* window);
    ~CurrentWindowScope();
    CurrentWindowScope(const CurrentWindowScope&) = delete;
    CurrentWindowScope& operator=(const CurrentWindowScope&) = delete;

private:
    QWidget* m_previous;
};

} // namespace host
