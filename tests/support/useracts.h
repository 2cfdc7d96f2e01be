#pragma once

#include "hostdialogs.h"
#include "vndialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>

// Actions of a user in a window, and functions that read what a window shows.

/// Ends the test program with a message that lists the existing widgets.
[[noreturn]] void failMissing(const QWidget& window, const char* className, const char* objectName);

/// The widget with this object name in a window. Ends the test program when there is none.
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

/// Presses the button with this object name.
inline void press(const QWidget& window, const char* button)
{
    child<QPushButton>(window, button).click();
}

/// Chooses the entry with this text in the menu of a widget. Fails the test when there is none.
void chooseEntry(const QWidget& menuOwner, const QString& text);
/// Drags the right edge of a column's header until the column has this width.
void drawColumn(const QTableWidget& table, int column, int width);
/// Clicks, or double-clicks if `twice` is set, in the middle of a cell.
void clickCell(QAbstractItemView& view, int row, int column = 0, bool twice = false);
/// Clicks these rows with Ctrl held, so that exactly they are selected.
void pickRows(QAbstractItemView& view, const QList<int>& rows, int column = 0);
/// Selects exactly the items with these texts.
void selectTexts(QListWidget& list, const QStringList& texts);
/// Selects exactly these rows in this order; the last one becomes the current row.
void selectRows(QTableWidget& table, const QList<int>& rows);

/// The item with exactly this text; null when there is none.
QListWidgetItem* itemOf(const QListWidget& list, const QString& text);
/// The first row that has this text in any of its cells; -1 when there is none.
int rowOf(const QTableWidget& table, const QString& text);
/// The column headers, separated by blanks.
QString headersOf(const QTableWidget& table);
QStringList textsOf(const QListWidget& list);
QStringList textsOf(const QComboBox& box);
/// The selected texts from top to bottom.
QStringList selectedTexts(const QListWidget& list);
/// One text per row, with "|" between the cells.
QStringList rowTexts(const QTableWidget& table);
