#pragma once

#include "layercells.h"

#include <QStringList>

#include <functional>

class QTableWidget;

/// What tables of layers share besides their cells.
namespace vnsi::layertable {

/// Sets up columns, headers and the selection mode. Call it once.
void setUp(QTableWidget& table, const QStringList& headers);

/// Sets the column widths that are stored in a node, as far as it has any.
void applyWidths(QTableWidget& table, const VnJsonPtr& node);
/// Stores the widths of all columns in a node.
void writeWidths(const QTableWidget& table, const VnJsonPtr& node);

/// Calls `react` when the user has resized a column. Widths set by the program do not count.
void whenUserSizes(QTableWidget& table, std::function<void()> react);

/// Updates the scroll bars for the present rows and widths immediately instead of later.
void settle(QTableWidget& table);

/// Moves the keyboard cursor to a cell and scrolls its row into view, without selecting it.
void moveCursor(QTableWidget& table, int row, int column);

} // namespace vnsi::layertable
