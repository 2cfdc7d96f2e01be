#pragma once

#include "hostdialogs.h"
#include "vndialogs.h"

#include <QPushButton>
#include <QStringList>

class QAbstractItemView;
class QComboBox;
class QListWidget;
class QListWidgetItem;
class QTableWidget;

// What a user does in a window, and what there is to read.

/// Ends the test program, naming what there is.
[[noreturn]] void failMissing(const QWidget& window, const char* className, const char* objectName);

/// The widget of that object name in a window; ends the test program when there is none.
template <class T>
T& child(const QWidget& window, const char* objectName)
{
    T* const found = window.findChild<T*>(QString::fromUtf8(objectName));
    if (!found)
        failMissing(window, T::staticMetaObject.className(), objectName);
    return *found;
}
template <class T>
T& child(const host::WatchedDialog& dialog, const char* objectName)
{
    return child<T>(*dialog.window(), objectName);
}

/// Presses the button of that object name.
inline void press(const QWidget& window, const char* button)
{
    child<QPushButton>(window, button).click();
}

/// Chooses an entry of the menu that a widget has; fails the test when there is none of that text.
void chooseEntry(const QWidget& menuOwner, const QString& text);
/// Draws the right edge of a column's header until the column has that width.
void drawColumn(const QTableWidget& table, int column, int width);
/// Clicks into the middle of a cell; `twice` for a double click.
void clickCell(QAbstractItemView& view, int row, int column = 0, bool twice = false);
/// Clicks these rows with Ctrl held, so that they and no others are selected.
void pickRows(QAbstractItemView& view, const QList<int>& rows, int column = 0);
/// Selects the items of those texts and no others.
void selectTexts(QListWidget& list, const QStringList& texts);
/// Selects these rows and no others, in this order; the last one becomes the current one.
void selectRows(QTableWidget& table, const QList<int>& rows);

/// The item of exactly that text; null when there is none.
QListWidgetItem* itemOf(const QListWidget& list, const QString& text);
/// The first row with that text in any of its cells; -1 when there is none.
int rowOf(const QTableWidget& table, const QString& text);
/// With blanks between.
QString headersOf(const QTableWidget& table);
QStringList textsOf(const QListWidget& list);
QStringList textsOf(const QComboBox& box);
/// From top to bottom.
QStringList selectedTexts(const QListWidget& list);
/// A line a row, its cells parted by "|".
QStringList rowTexts(const QTableWidget& table);
