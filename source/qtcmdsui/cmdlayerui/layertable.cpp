#include "layertable.h"

#include "hostapi/hosttree.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

#include <algorithm>

namespace vnsi::layertable {

void setUp(QTableWidget& table, const QStringList& headers)
{
    table.setColumnCount(headers.size());
    table.setHorizontalHeaderLabels(headers);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.verticalHeader()->hide();
    table.horizontalHeader()->setHighlightSections(false);
}

void applyWidths(QTableWidget& table, const VnJsonPtr& node)
{
    const VnJsonPtr widths = node ? node->GetDataJ(managerkey::kColumnWidths) : VnJsonPtr();
    const int count = std::min(hostapi::count(widths), table.columnCount());
    for (int column = 0; column < count; ++column)
        table.setColumnWidth(column, hostapi::intAt(widths, column, table.columnWidth(column)));
}

void writeWidths(const QTableWidget& table, const VnJsonPtr& node)
{
    if (!node)
        return;
    VnJsonPtr widths = node->GetDataJ(managerkey::kColumnWidths);
    if (hostapi::count(widths) == 0) {
        widths = hostapi::makeArray(table.columnCount());
        node->SetDataJ(managerkey::kColumnWidths, widths);
    }
    for (int last = hostapi::count(widths) - 1; last >= 0; --last)
        hostapi::removeItem(widths, last);
    for (int column = 0; column < table.columnCount(); ++column)
        hostapi::append(widths, table.columnWidth(column));
}

void moveCursor(QTableWidget& table, int row, int column)
{
    const int scrolledTo = table.horizontalScrollBar()->value();
    table.selectionModel()->setCurrentIndex(
        table.model()->index(row, column), QItemSelectionModel::NoUpdate);
    table.horizontalScrollBar()->setValue(scrolledTo);
}

} // namespace vnsi::layertable
