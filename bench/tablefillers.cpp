#include "tablefillers.h"

#include <QHeaderView>
#include <QPixmap>
#include <QSignalBlocker>

namespace bench {

namespace {

constexpr int kSwatchSize = 16;

/// The picture of each column, which a simple program loads again for every cell; null for columns
/// without pictures.
constexpr const char* kPictures[] = {":/res/Resources/layer_nocurrent.bmp", nullptr,
    ":/res/Resources/layer_on.bmp", ":/res/Resources/layer_thaw.bmp",
    ":/res/Resources/layer_unlock.bmp", nullptr, nullptr, nullptr, nullptr, nullptr,
    ":/res/Resources/layer_print.bmp", ":/res/Resources/layer_allthaw.bmp", nullptr};

QIcon freshIcon(int column)
{
    if (const char* const file = kPictures[column])
        return QIcon(QPixmap(QString::fromLatin1(file)));
    QPixmap swatch(kSwatchSize, kSwatchSize);
    swatch.fill(Qt::red);
    return QIcon(swatch);
}

QTableWidgetItem* makeItem(const CellLook& look, const QIcon& icon)
{
    auto* item = new QTableWidgetItem;
    item->setFlags(look.flags);
    item->setTextAlignment(look.alignment);
    if (!icon.isNull())
        item->setIcon(icon);
    if (!look.text.isEmpty())
        item->setText(look.text);
    return item;
}

} // namespace

std::vector<CellLook> looksOf(const QTableWidget& table)
{
    std::vector<CellLook> looks;
    looks.reserve(static_cast<std::size_t>(table.rowCount() * table.columnCount()));
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column) {
            const QTableWidgetItem* const item = table.item(row, column);
            looks.push_back({item->text(), item->icon(), item->textAlignment(), item->flags()});
        }
    }
    return looks;
}

void dressAs(QTableWidget& table, const QTableWidget& other)
{
    QStringList headers;
    for (int column = 0; column < other.columnCount(); ++column)
        headers.append(other.horizontalHeaderItem(column)->text());
    table.setColumnCount(other.columnCount());
    table.setHorizontalHeaderLabels(headers);
    table.setSelectionBehavior(other.selectionBehavior());
    table.verticalHeader()->hide();
    table.resize(other.size());
    table.show();
}

void fillInBulk(QTableWidget& table, const std::vector<CellLook>& looks)
{
    const int columns = table.columnCount();
    table.setUpdatesEnabled(false);
    table.clearContents();
    table.setRowCount(0);
    table.setRowCount(static_cast<int>(looks.size()) / columns);
    {
        const QSignalBlocker quiet(table.model());
        int cell = 0;
        for (const CellLook& look : looks) {
            table.setItem(cell / columns, cell % columns, makeItem(look, look.icon));
            ++cell;
        }
    }
    table.setUpdatesEnabled(true);
    table.resizeColumnsToContents();
}

void fillRowByRow(QTableWidget& table, const std::vector<CellLook>& looks)
{
    const int columns = table.columnCount();
    const int rows = static_cast<int>(looks.size()) / columns;
    table.clearContents();
    table.setRowCount(0);
    for (int row = 0; row < rows; ++row) {
        table.insertRow(row);
        for (int column = 0; column < columns; ++column) {
            const CellLook& look = looks[static_cast<std::size_t>(row * columns + column)];
            const QIcon icon = look.icon.isNull() ? QIcon() : freshIcon(column);
            table.setItem(row, column, makeItem(look, icon));
        }
    }
    table.resizeColumnsToContents();
}

} // namespace bench
