#include "vnqtlaytranslistwgt.h"

#include "layercells.h"
#include "layernamedelegate.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>

namespace vnsi {

namespace {

constexpr int kCellMargin = 16;
constexpr int kHeaderMargin = 8;

struct MappingColumn
{
    const char* header;
    const char* widest; ///< A text that determines the width of the column in every font, with the header.
    /// The text that the column shows of a target; null for the mapped layer.
    QString (TargetRecord::*text)() const;
};

constexpr MappingColumn kColumns[] = {
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransQTableWgt", "旧图层名"), "A-FLOR-PATT", nullptr},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransQTableWgt", "新图层名"), "A-FLOR-PATT",
        &TargetRecord::name},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransQTableWgt", "颜色"), "RGB:255,255,255",
        &TargetRecord::colorText},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransQTableWgt", "线型"), "Continuous",
        &TargetRecord::linetype},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransQTableWgt", "线宽"), "0.25 mm",
        &TargetRecord::lineWidthText},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransQTableWgt", "透明度"), "透明度",
        &TargetRecord::transparencyText},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLaytransQTableWgt", "打印样式"), "Color_255",
        &TargetRecord::plotStyleText},
};

} // namespace

VnQtLaytransListWgt::VnQtLaytransListWgt(QWidget* parent)
    : QListWidget(parent),
      m_menu(new QMenu(this))
{
    setItemDelegate(new LayerNameDelegate(this));
}

void VnQtLaytransListWgt::contextMenuEvent(QContextMenuEvent* event)
{
    m_menu->popup(event->globalPos());
}

void VnQtLaytransListWgt::fill(
    const std::vector<TranslationLists::Source>& layers, LayerCells& cells)
{
    QStringList names;
    std::vector<bool> marks;
    for (const TranslationLists::Source& layer : layers) {
        names.append(layer.name);
        marks.push_back(layer.isUsed());
    }
    fill(names, marks, cells);
}

void VnQtLaytransListWgt::fill(const std::vector<TargetRecord>& layers, LayerCells& cells)
{
    QStringList names;
    std::vector<bool> marks;
    for (const TargetRecord& layer : layers) {
        names.append(layer.name());
        marks.push_back(layer.isUsed());
    }
    fill(names, marks, cells);
}

void VnQtLaytransListWgt::fill(
    const QStringList& names, const std::vector<bool>& marks, LayerCells& cells)
{
    const QStringList selected = selectedNames();
    const QString current = currentItem() ? currentItem()->text() : QString();
    setUpdatesEnabled(false);
    clear();
    addItems(names);
    {
        // Signals are blocked so that the list is updated once instead of twice per item.
        const QSignalBlocker quiet(model());
        for (int row = 0; row < names.size(); ++row) {
            item(row)->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
            item(row)->setIcon(
                cells.icon(LayerCells::stateIcon(marks[static_cast<std::size_t>(row)])));
        }
    }
    selectNames(selected, current);
    setUpdatesEnabled(true);
}

void VnQtLaytransListWgt::selectNames(const QStringList& names, const QString& current)
{
    if (names.isEmpty())
        return;
    const QSet<QString> wanted(names.begin(), names.end());
    QItemSelection selection;
    for (int row = 0; row < count(); ++row) {
        const QModelIndex index = model()->index(row, 0);
        if (!wanted.contains(item(row)->text()))
            continue;
        selection.append(QItemSelectionRange(index));
        if (item(row)->text() == current)
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    }
    selectionModel()->select(selection, QItemSelectionModel::Select);
}

std::vector<int> VnQtLaytransListWgt::selectedRows() const
{
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedIndexes())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

QStringList VnQtLaytransListWgt::selectedNames() const
{
    QStringList names;
    for (const int row : selectedRows())
        names.append(item(row)->text());
    return names;
}

void VnQtLaytransListWgt::addToSelection(const QString& name)
{
    const QString wanted = name.toLower();
    QItemSelection selection;
    for (int row = 0; row < count(); ++row) {
        if (item(row)->text().toLower() == wanted)
            selection.append(QItemSelectionRange(model()->index(row, 0)));
    }
    selectionModel()->select(selection, QItemSelectionModel::Select);
    if (!selection.isEmpty())
        scrollTo(selection.indexes().constFirst());
}

VnQtLaytransQTableWgt::VnQtLaytransQTableWgt(QWidget* parent) : QTableWidget(parent)
{
    setColumnCount(static_cast<int>(std::size(kColumns)));
    QStringList headers;
    for (const MappingColumn& column : kColumns) {
        const QString header = tr(column.header);
        const int text = fontMetrics().horizontalAdvance(QString::fromUtf8(column.widest));
        const int title = fontMetrics().horizontalAdvance(header);
        setColumnWidth(headers.size(), std::max(text + kCellMargin, title + kHeaderMargin));
        headers.append(header);
    }
    setHorizontalHeaderLabels(headers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false); // The Tab key moves on to the buttons.
    setWordWrap(false);
    setContextMenuPolicy(Qt::CustomContextMenu);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
}

void VnQtLaytransQTableWgt::fill(const std::vector<TranslationLists::Mapping>& mappings)
{
    setUpdatesEnabled(false);
    clearContents();
    setRowCount(0);
    setRowCount(static_cast<int>(mappings.size()));
    {
        // Signals are blocked so that the table is updated once instead of once per cell.
        const QSignalBlocker quiet(model());
        int row = 0;
        for (const auto& [source, target] : mappings) {
            int column = 0;
            for (const MappingColumn& shown : kColumns) {
                auto* cell =
                    new QTableWidgetItem(shown.text ? (target.*shown.text)() : source.name);
                cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
                setItem(row, column++, cell);
            }
            ++row;
        }
    }
    setUpdatesEnabled(true);
}

int VnQtLaytransQTableWgt::selectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

} // namespace vnsi
