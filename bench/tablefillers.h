#pragma once

#include <QIcon>
#include <QTableWidget>

#include <vector>

namespace bench {

/// The appearance of a cell.
struct CellLook
{
    QString text;
    QIcon icon;
    int alignment = 0;
    Qt::ItemFlags flags;
};

/// The appearance of the cells of a table, row by row.
std::vector<CellLook> looksOf(const QTableWidget& table);

/// Gives an empty table the columns, headers and size of another one and shows it.
void dressAs(QTableWidget& table, const QTableWidget& other);

/// Fills the table as fast as possible with everything prepared: all rows are added at once,
/// without painting and without a signal for each cell.
void fillInBulk(QTableWidget& table, const std::vector<CellLook>& looks);

/// Fills the table in the simple way: a row is inserted, its pictures are loaded, and so on.
void fillRowByRow(QTableWidget& table, const std::vector<CellLook>& looks);

} // namespace bench
