#include "useracts.h"

#include <QComboBox>
#include <QHeaderView>
#include <QListWidget>
#include <QMenu>
#include <QTableWidget>
#include <QtTest>

namespace {

QPoint placeOf(QAbstractItemView& view, int row, int column)
{
    const QModelIndex index = view.model()->index(row, column);
    view.scrollTo(index);
    return view.visualRect(index).center();
}

} // namespace

void failMissing(const QWidget& window, const char* className, const char* objectName)
{
    QStringList names;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
            names.append(widget->objectName());
    }
    qFatal("no %s named \"%s\" among: %s", className, objectName, qPrintable(names.join(", ")));
}

void chooseEntry(const QWidget& menuOwner, const QString& text)
{
    for (QAction* action : menuOwner.findChild<QMenu*>()->actions()) {
        if (action->text() == text)
            return action->trigger();
    }
    QTest::qFail(qPrintable("no menu entry " + text), __FILE__, __LINE__);
}

void drawColumn(const QTableWidget& table, int column, int width)
{
    QHeaderView* const header = table.horizontalHeader();
    const int left = header->sectionViewportPosition(column);
    const QPoint edge(left + table.columnWidth(column) - 1, header->height() / 2);
    const QPoint wanted(left + width - 1, edge.y());
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
    QMouseEvent move(QEvent::MouseMove, wanted, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(header->viewport(), &move);
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, wanted);
}

void clickCell(QAbstractItemView& view, int row, int column, bool twice)
{
    const QPoint place = placeOf(view, row, column);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    if (twice)
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
}

void pickRows(QAbstractItemView& view, const QList<int>& rows, int column)
{
    view.clearSelection();
    for (const int row : rows)
        QTest::mouseClick(
            view.viewport(), Qt::LeftButton, Qt::ControlModifier, placeOf(view, row, column));
}

void selectTexts(QListWidget& list, const QStringList& texts)
{
    for (int row = 0; row < list.count(); ++row)
        list.item(row)->setSelected(texts.contains(list.item(row)->text()));
}

void selectRows(QTableWidget& table, const QList<int>& rows)
{
    table.clearSelection();
    for (const int row : rows) {
        const QModelIndex index = table.model()->index(row, 0);
        table.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        table.selectionModel()->select(
            index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

QListWidgetItem* itemOf(const QListWidget& list, const QString& text)
{
    return list.findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive).value(0);
}

int rowOf(const QTableWidget& table, const QString& text)
{
    const auto found = table.findItems(text, Qt::MatchExactly);
    return found.isEmpty() ? -1 : found.first()->row();
}

QString headersOf(const QTableWidget& table)
{
    QStringList all;
    for (int column = 0; column < table.columnCount(); ++column)
        all.append(table.horizontalHeaderItem(column)->text());
    return all.join(' ');
}

QStringList textsOf(const QListWidget& list)
{
    QStringList all;
    for (int row = 0; row < list.count(); ++row)
        all.append(list.item(row)->text());
    return all;
}

QStringList textsOf(const QComboBox& box)
{
    QStringList all;
    for (int row = 0; row < box.count(); ++row)
        all.append(box.itemText(row));
    return all;
}

QStringList selectedTexts(const QListWidget& list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->isSelected())
            texts.append(list.item(row)->text());
    }
    return texts;
}

QStringList rowTexts(const QTableWidget& table)
{
    QStringList all;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells.append(table.item(row, column)->text());
        all.append(cells.join('|'));
    }
    return all;
}
