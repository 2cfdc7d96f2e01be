#pragma once

#include "modulefixture.h"

#include <QPushButton>
#include <QStringList>

class QAbstractItemView;
class QComboBox;
class QListWidget;
class QTableWidget;

// What a user does in a window, and what there is to read.

/// Presses the button of that object name.
inline void press(const QWidget& window, const char* button)
{
    ModuleFixture::child<QPushButton>(&window, button)->click();
}

/// Chooses an entry of the menu that a widget has; fails the test when there is none of that text.
void chooseEntry(const QWidget& menuOwner, const QString& text);
/// Draws the right edge of a column's header until the column has that width.
void drawColumn(const QTableWidget& table, int column, int width);
/// Clicks into the middle of a cell; `twice` for a double click.
void clickCell(QAbstractItemView& view, int row, int column = 0, bool twice = false);
/// Selects the items of those texts and no others.
void selectTexts(QListWidget& list, const QStringList& texts);
/// Selects these rows and no others, in this order; the last one becomes the current one.
void selectRows(QTableWidget& table, const QList<int>& rows);

QStringList textsOf(const QListWidget& list);
QStringList textsOf(const QComboBox& box);
/// From top to bottom.
QStringList selectedTexts(const QListWidget& list);
/// A line a row, its cells parted by "|".
QStringList rowTexts(const QTableWidget& table);
