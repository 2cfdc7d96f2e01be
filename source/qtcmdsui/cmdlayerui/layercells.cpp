#include "layercells.h"

#include "vnservicedict.h"
#include "vnstrings.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPixmap>
#include <QSignalBlocker>
#include <QTableWidget>

namespace vnsi {

namespace {

constexpr int kSwatchSize = 16;
/// Lists with more looks than this are no drawing's; models of them are not worth their memory.
constexpr int kMostModels = 4096;
// The alignment values of the host's tables: left or centred, in the middle of the row's height.
constexpr int kAlignLeft = 129;
constexpr int kAlignCentre = 132;

constexpr const char* kIconNames[] = {"current", "nocurrent", "deleted", "off", "on", "frozed",
    "thaw", "lock", "unlock", "print", "noprint", "allfrozed", "allthaw", "newlayer", "deletelayer",
    "currentlayer"};
static_assert(std::size(kIconNames) == static_cast<std::size_t>(LayerIcon::Count));

bool isCentred(LayerCell cell)
{
    return cell == LayerCell::Toggle || cell == LayerCell::Color;
}

/// Whether a drawing's cells of this kind repeat few looks; texts differ.
bool hasFewLooks(LayerCell cell)
{
    return cell == LayerCell::Status || cell == LayerCell::Toggle || cell == LayerCell::Color ||
           cell == LayerCell::LineWidth || cell == LayerCell::Number;
}

VnDocumentPtr currentDocument()
{
    const auto manager =
        OdSmartPtr<VnDocMgr>::castFrom(vn_arbitDict_getservice(L"Core/DocMgr").get());
    return manager ? manager->currentDocument() : VnDocumentPtr();
}

/// Rows to select, neighbours joined, so that selecting thousands is one operation.
QItemSelection selectedRows(const QTableWidget& table, const std::vector<LayerRecord>& records)
{
    QItemSelection selection;
    const auto index = [&](int row, int column) { return table.model()->index(row, column); };
    const int last = table.columnCount() - 1;
    for (int row = 0, count = static_cast<int>(records.size()); row < count; ++row) {
        const int first = row;
        while (row < count && records[static_cast<std::size_t>(row)].flag(layerkey::kSelected))
            ++row;
        if (row > first)
            selection.append(QItemSelectionRange(index(first, 0), index(row - 1, last)));
    }
    return selection;
}

} // namespace

QString lineWidthText(int lineWidth)
{
    switch (lineWidth) {
    case -3:
        return QCoreApplication::translate("vnsi::LayerCells", "默认");
    case -1:
        return QStringLiteral("ByLayer");
    case -2:
        return QStringLiteral("ByBlock");
    default:
        return QStringLiteral("%1 mm").arg(lineWidth / 100.0, 0, 'f', 2);
    }
}

const QIcon& LayerCells::icon(LayerIcon icon)
{
    const auto index = static_cast<std::size_t>(icon);
    QIcon& made = m_icons[index];
    if (made.isNull())
        made = QIcon(
            QStringLiteral(":/res/Resources/layer_%1.bmp").arg(QLatin1String(kIconNames[index])));
    return made;
}

const QIcon& LayerCells::statusIcon(int status)
{
    switch (status) {
    case kLayerCurrent:
        return icon(LayerIcon::Current);
    case kLayerDelete:
        return icon(LayerIcon::Deleted);
    default:
        return icon(LayerIcon::NoCurrent);
    }
}

const QIcon& LayerCells::stateIcon(bool current)
{
    return icon(current ? LayerIcon::Current : LayerIcon::NoCurrent);
}

const LayerCells::Swatch& LayerCells::swatch(const LayerColor& color)
{
    Swatch& made = m_swatches[{color.method, color.value}];
    if (made.icon.isNull()) {
        const OdCmColor resolved = color.resolved();
        QPixmap pixmap(kSwatchSize, kSwatchSize);
        pixmap.fill(QColor(resolved.red(), resolved.green(), resolved.blue()));
        made.icon = QIcon(pixmap);
        if (m_document.isNull())
            m_document = currentDocument();
        const OdArray<ODCOLORREF> noTable;
        made.text = vnutOdStringToQString(
            formatColor(resolved, m_document ? m_document->colorTable() : noTable, OdDbObjectId()));
    }
    return made;
}

LayerCells::Look LayerCells::lookOf(const LayerRecord& record, const LayerColumn& column) const
{
    const int cell = static_cast<int>(column.cell);
    switch (column.cell) {
    case LayerCell::Status:
        return {cell, {record.status(), 0}};
    case LayerCell::Toggle:
        return {cell,
            {static_cast<qint64>(record.flag(column.key) ? column.whenTrue : column.whenFalse), 0}};
    case LayerCell::Color: {
        const LayerColor color = record.color();
        return {cell, {color.method, color.value}};
    }
    default:
        return {cell, {record.number(column.key), 0}};
    }
}

QTableWidgetItem* LayerCells::makeItem(const LayerRecord& record, const LayerColumn& column)
{
    if (!hasFewLooks(column.cell))
        return makeNewItem(record, column);
    // A copy shares what it shows with its model, which is cheaper than setting it again.
    if (m_models.size() > kMostModels)
        m_models.clear();
    std::shared_ptr<QTableWidgetItem>& model = m_models[lookOf(record, column)];
    if (!model)
        model.reset(makeNewItem(record, column));
    return model->clone();
}

QTableWidgetItem* LayerCells::makeBlankItem(LayerCell cell)
{
    const bool centred = isCentred(cell);
    std::shared_ptr<QTableWidgetItem>& blank = m_blanks[centred];
    if (!blank) {
        blank = std::make_shared<QTableWidgetItem>();
        blank->setFlags(blank->flags() & ~Qt::ItemIsEditable);
        blank->setTextAlignment(centred ? kAlignCentre : kAlignLeft);
    }
    return blank->clone();
}

QTableWidgetItem* LayerCells::makeNewItem(const LayerRecord& record, const LayerColumn& column)
{
    QTableWidgetItem* const item = makeBlankItem(column.cell);
    switch (column.cell) {
    case LayerCell::Status:
        item->setIcon(statusIcon(record.status()));
        break;
    case LayerCell::Text:
        item->setText(vnutOdStringToQString(record.text(column.key)));
        break;
    case LayerCell::MarkedName:
        item->setIcon(stateIcon(record.isCurrentOfState()));
        item->setText(vnutOdStringToQString(record.text(column.key)));
        break;
    case LayerCell::Toggle:
        item->setIcon(icon(record.flag(column.key) ? column.whenTrue : column.whenFalse));
        break;
    case LayerCell::Color: {
        const Swatch& shown = swatch(record.color());
        item->setIcon(shown.icon);
        item->setText(shown.text);
        break;
    }
    case LayerCell::LineWidth:
        item->setText(lineWidthText(record.number(column.key)));
        break;
    case LayerCell::Number:
        item->setText(QString::number(record.number(column.key)));
        break;
    }
    return item;
}

void LayerCells::refresh(QTableWidget& table, int row, int column, const LayerRecord& record,
    const LayerColumn& description)
{
    table.setItem(row, column, makeItem(record, description));
}

void LayerCells::fill(QTableWidget& table, const std::vector<LayerRecord>& records,
    const LayerColumn* columns, int columnCount)
{
    m_document = currentDocument();
    table.setUpdatesEnabled(false);
    table.clearContents();
    table.setRowCount(0);
    table.setRowCount(static_cast<int>(records.size()));
    {
        // One change of the whole table instead of one a cell.
        const QSignalBlocker quiet(table.model());
        int row = 0;
        for (const LayerRecord& record : records) {
            for (int column = 0; column < columnCount; ++column)
                table.setItem(row, column, makeItem(record, columns[column]));
            ++row;
        }
    }
    table.selectionModel()->select(selectedRows(table, records), QItemSelectionModel::Select);
    table.setUpdatesEnabled(true);
}

} // namespace vnsi
