#pragma once

#include "layercells.h"

#include <QStringList>

#include <functional>

class QTableWidget;

/// What tables of layers have in common beside their cells.
namespace vnsi::layertable {

/// Columns, headers and the way of selecting; to be called once.
void setUp(QTableWidget& table, const QStringList& headers);

/// Gives the columns the widths that a node keeps, as far as it has any.
void applyWidths(QTableWidget& table, const VnJsonPtr& node);
/// Writes the widths of all columns into a node.
void writeWidths(const QTableWidget& table, const VnJsonPtr& node);

/// Calls `react` whenever the user has drawn a column to another width; widths that the program
/// gives do not count.
void whenUserSizes(QTableWidget& table, std::function<void()> react);

/// Lets the scroll bars follow the present rows and widths at once instead of later.
void settle(QTableWidget& table);

/// Puts the keyboard's cursor into a cell, and its row into view, without selecting it.
void moveCursor(QTableWidget& table, int row, int column);

} // namespace vnsi::layertable
