#pragma once

#include <QUrl>

class QWidget;

namespace host {

/// The page of the manual about a window, in the language of the user interface. The window, or
/// else the nearest window around it that has a page, is identified by its object name or its
/// property "helpPage". The start page when there is no such window or `window` is null.
QUrl helpPage(const QWidget* window);

} // namespace host
