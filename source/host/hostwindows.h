#pragma once

#include "vnsidef.h"

class QWidget;

namespace host {

/// Sets the program's main window, which is the parent of dialogs when no other window is active.
/// The caller keeps ownership; null unsets it.
VNSI_EXPORT void setMainWindow(QWidget* window);

/// The window that a new dialog belongs to: the topmost modal window, else the active window, else
/// the main window. Null when there is none and when called off the user-interface thread.
VNSI_EXPORT QWidget* currentWindow();

/// Makes another window the current one while this object exists; null changes nothing.
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
