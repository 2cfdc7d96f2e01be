#pragma once

#include <QIcon>
#include <QTableWidget>

#include <vector>

namespace bench {

/// What a cell shows.
struct CellLook
{
    QString text;
    QIcon icon;
    int alignment = 0;
    Qt::ItemFlags flags;
};

/// What the cells of a table show, row by row.
std::vector<CellLook> looksOf(const QTableWidget& table);

/// Gives an empty table the columns, headers and size of another and shows it.
void dressAs(QTableWidget& table, const QTableWidget& other);

/// Fills the table as fast as a program with everything at hand can: room for all rows at once, no
/// painting, no signal for each cell.
void fillInBulk(QTableWidget& table, const std::vector<CellLook>& looks);

/// Fills the table the plain way: a row is inserted, its pictures are loaded, and so on.
void fillRowByRow(QTableWidget& table, const std::vector<CellLook>& looks);

} // namespace bench
