#include "managertable.h"

#include "hostapi/hosttree.h"
#include "layerclicks.h"
#include "layernaming.h"
#include "layertable.h"
#include "moduletexts.h"

#include <QCoreApplication>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableWidget>

namespace vnsi {

namespace {

/// The first two columns and the last one react only to double clicks, the others only to single
/// clicks. Cells outside of the table react to neither.
constexpr LayerColumn kColumns[] = {
    {QT_TRANSLATE_NOOP("cmdlayerui", "状态"), LayerCell::Status, layerkey::kStatus,
        LayerAlign::Left, LayerClick::None, {}, LayerDoubleClick::MakeCurrent},
    {QT_TRANSLATE_NOOP("cmdlayerui", "名称"), LayerCell::Text, layerkey::kName, LayerAlign::Left,
        LayerClick::None, {}, LayerDoubleClick::Rename},
    layercolumn::kOff,
    layercolumn::frozen(QT_TRANSLATE_NOOP("cmdlayerui", "冻结")),
    layercolumn::kLock,
    layercolumn::kColor,
    layercolumn::kLinetype,
    layercolumn::kLineWidth,
    layercolumn::kTransparency,
    layercolumn::kPlotStyle,
    layercolumn::kPrint,
    layercolumn::kVPortFrozen,
    {QT_TRANSLATE_NOOP("cmdlayerui", "说明"), LayerCell::Text, layerkey::kDescription,
        LayerAlign::Left, LayerClick::None, {}, LayerDoubleClick::Describe},
};
constexpr int kColumnCount = static_cast<int>(std::size(kColumns));

constexpr int kStatusColumn = columnOf(kColumns, layerkey::kStatus);
constexpr int kNameColumn = columnOf(kColumns, layerkey::kName);
constexpr int kOffColumn = columnOf(kColumns, layerkey::kOff);
constexpr int kColorColumn = columnOf(kColumns, layerkey::kColor);
constexpr int kPlotStyleColumn = columnOf(kColumns, layerkey::kPlotStyle);
constexpr int kDescriptionColumn = columnOf(kColumns, layerkey::kDescription);

bool isColumn(int column)
{
    return column >= 0 && column < kColumnCount;
}

} // namespace

void ManagerTable::setUp(QTableWidget& table, const VnJsonPtr& tree)
{
    m_table = &table;
    m_tree = tree;
    QStringList headers;
    for (const LayerColumn& column : kColumns)
        headers.append(Texts::tr(column.header));
    layertable::setUp(table, headers);
}

void ManagerTable::fill()
{
    const int scrolledTo = m_table->verticalScrollBar()->value();
    int cursor = m_table->currentRow();
    const LayerRecordList list = layers();
    const std::vector<LayerRecord> records(list.begin(), list.end());
    m_currentRow = -1;
    for (int row = 0; row < list.count(); ++row) {
        const LayerRecord& record = records[static_cast<std::size_t>(row)];
        if (record.isCurrent())
            m_currentRow = row;
        if (record.isSelected())
            cursor = row;
    }
    m_cells.fill(*m_table, records, kColumns, kColumnCount);
    if (list.exists()) {
        m_table->resizeColumnsToContents();
        m_table->setFocus();
    }
    layertable::applyWidths(*m_table, m_tree);
    layertable::settle(*m_table);
    m_table->verticalScrollBar()->setValue(scrolledTo);
    layertable::moveCursor(*m_table, cursor >= 0 ? cursor : m_currentRow, kNameColumn);
}

void ManagerTable::showCell(int row, int column)
{
    m_cells.refresh(*m_table, row, column, layers()[row], kColumns[column]);
}

bool ManagerTable::click(int row, int column)
{
    LayerRecord clicked = layers()[row];
    if (clicked.isNull() || !isColumn(column))
        return false;
    const VnJsonPtr colorQuestion = hostapi::makeObject();
    if (!recordedits::click(
            kColumns[column], clicked, row == m_currentRow, colorQuestion, m_table->window()))
        return false;
    showCell(row, column);
    if (column == kColorColumn)
        showCell(row, kPlotStyleColumn);
    clicked.markModified();
    return true;
}

void ManagerTable::turnOn(int row)
{
    click(row, kOffColumn);
}

LayerDoubleClick ManagerTable::doubleClick(int row, int column) const
{
    const bool isCell = isColumn(column) && layers().holds(row);
    return isCell ? kColumns[column].doubleClick : LayerDoubleClick::None;
}

void ManagerTable::setText(int row, LayerDoubleClick edit, const OdString& text)
{
    const QSignalBlocker quiet(m_table);
    const LayerRecordList list = layers();
    LayerRecord changed = list[row];
    const bool isName = edit == LayerDoubleClick::Rename;
    if (isName)
        layernaming::storeName(list, row, text);
    else
        changed.setText(layerkey::kDescription, text);
    changed.markModified(); // This happens even when a name was refused, which is intended.
    showCell(row, isName ? kNameColumn : kDescriptionColumn);
}

void ManagerTable::makeCurrent(int row)
{
    setStatus(m_currentRow, kLayerOrdinary);
    setStatus(row, kLayerCurrent);
}

void ManagerTable::setStatus(int row, LayerStatus status)
{
    LayerRecord changed = layers()[row];
    if (changed.isNull())
        return;
    changed.setStatus(status);
    changed.setSelected(status == kLayerCurrent);
    changed.markModified();
    showCell(row, kStatusColumn);
}

ManagerTable::Selection ManagerTable::writeSelectedRows() const
{
    const LayerRecordList list = layers();
    std::vector<bool> isSelected(static_cast<std::size_t>(list.count()));
    Selection selection;
    for (const QTableWidgetSelectionRange& range : m_table->selectedRanges()) {
        const int bottom = std::min(range.bottomRow(), list.count() - 1);
        for (int row = range.topRow(); row <= bottom; ++row) {
            isSelected[static_cast<std::size_t>(row)] = true;
            selection.last = std::max(selection.last, row);
            selection.latest = row;
        }
    }
    for (int row = 0; row < list.count(); ++row) {
        list[row].setSelected(isSelected[static_cast<std::size_t>(row)]);
        selection.count += isSelected[static_cast<std::size_t>(row)] ? 1 : 0;
    }
    return selection;
}

ManagerTable::Selection ManagerTable::writeSelection() const
{
    const Selection selection = writeSelectedRows();
    if (!m_tree)
        return selection;
    m_tree->SetDataI(managerkey::kSelectCount, selection.count);
    if (selection.count > 0) {
        m_tree->SetDataI(managerkey::kLastSelectedIndex, selection.latest);
        m_tree->SetDataI(managerkey::kLastIndex, selection.last);
    }
    return selection;
}

void ManagerTable::clearSelected() const
{
    for (LayerRecord record : layers())
        record.setSelected(false);
}

void ManagerTable::writeWidths() const
{
    layertable::writeWidths(*m_table, m_tree);
}

} // namespace vnsi
