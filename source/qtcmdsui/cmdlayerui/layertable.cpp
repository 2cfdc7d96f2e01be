#include "layertable.h"

#include "hostapi/hosttree.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

#include <algorithm>
#include <utility>

namespace vnsi::layertable {

namespace {

/// Detects widths that the user has dragged by comparing a header before and after the mouse button
/// was down. The header's own signals do not tell who changed a width.
class DrawnWidths : public QObject
{
public:
    DrawnWidths(QTableWidget& table, std::function<void()> react)
        : QObject(&table),
          m_header(*table.horizontalHeader()),
          m_react(std::move(react))
    {
        m_header.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            m_pressed = m_header.saveState();
        else if (event->type() == QEvent::MouseButtonRelease && m_header.saveState() != m_pressed)
            m_react();
        return false;
    }

private:
    QHeaderView& m_header;
    std::function<void()> m_react;
    QByteArray m_pressed;
};

} // namespace

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

void whenUserSizes(QTableWidget& table, std::function<void()> react)
{
    new DrawnWidths(table, std::move(react)); // The table owns the object.
}

void settle(QTableWidget& table)
{
    table.doItemsLayout();
    // Scroll bars are shown by a queued call. Until then the view is too high, and a last row that
    // is scrolled into view would end up half hidden.
    QCoreApplication::sendPostedEvents(&table, QEvent::MetaCall);
}

void moveCursor(QTableWidget& table, int row, int column)
{
    const int scrolledTo = table.horizontalScrollBar()->value();
    table.selectionModel()->setCurrentIndex(
        table.model()->index(row, column), QItemSelectionModel::NoUpdate);
    table.horizontalScrollBar()->setValue(scrolledTo);
}

} // namespace vnsi::layertable
