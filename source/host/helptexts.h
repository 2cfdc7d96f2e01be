#pragma once

#include <QUrl>

class QWidget;

namespace host {

/// The manual's page about a window, in the language that texts are shown in: that of the window or
/// of the nearest one around it that has one, by its object name or its property "helpPage"; else,
/// and for null, the start page.
QUrl helpPage(const QWidget* window);

} // namespace host
