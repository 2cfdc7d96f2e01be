#include "layercells.h"

#include "hostapi/hostcalls.h"
#include "lineweighttext.h"
#include "moduletexts.h"
#include "vnstrings.h"

#include <QApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>
#include <QTableWidget>

#include <utility>

namespace vnsi {

namespace {

constexpr int kSwatchSize = 16;
constexpr int kSwatchGap = 4;
// The alignment values of the host's tables: left or centred, and vertically centred.
constexpr int kAlignLeft = 129;
constexpr int kAlignCentre = 132;

struct IconRow
{
    const char* name;
    const char* meaning; ///< Source text.
};

constexpr IconRow kIcons[] = {
    {"current", QT_TRANSLATE_NOOP("cmdlayerui", "当前图层")},
    {"nocurrent", QT_TRANSLATE_NOOP("cmdlayerui", "图层")},
    {"deleted", QT_TRANSLATE_NOOP("cmdlayerui", "要删除的图层")},
    {"off", QT_TRANSLATE_NOOP("cmdlayerui", "关")},
    {"on", QT_TRANSLATE_NOOP("cmdlayerui", "开")},
    {"frozed", QT_TRANSLATE_NOOP("cmdlayerui", "冻结")},
    {"thaw", QT_TRANSLATE_NOOP("cmdlayerui", "解冻")},
    {"lock", QT_TRANSLATE_NOOP("cmdlayerui", "锁定")},
    {"unlock", QT_TRANSLATE_NOOP("cmdlayerui", "解锁")},
    {"print", QT_TRANSLATE_NOOP("cmdlayerui", "打印")},
    {"noprint", QT_TRANSLATE_NOOP("cmdlayerui", "不打印")},
    {"allfrozed", QT_TRANSLATE_NOOP("cmdlayerui", "在新视口中冻结")},
    {"allthaw", QT_TRANSLATE_NOOP("cmdlayerui", "在新视口中解冻")},
    {"newlayer", QT_TRANSLATE_NOOP("cmdlayerui", "新建图层")},
    {"deletelayer", QT_TRANSLATE_NOOP("cmdlayerui", "删除图层")},
    {"currentlayer", QT_TRANSLATE_NOOP("cmdlayerui", "置为当前")},
};
static_assert(std::size(kIcons) == static_cast<std::size_t>(LayerIcon::Count));

using Look = QExplicitlySharedDataPointer<const LayerCellLook>;

Look makeLook(const QIcon& icon, const QString& text, const QString& spoken)
{
    return Look(new LayerCellLook(icon, text, spoken));
}

/// A cell that cannot be edited in place. It stores no data of its own, because the role list of a
/// general item needs several allocations per cell, and a table has thirteen cells per layer.
class LayerCellItem : public QTableWidgetItem
{
public:
    static constexpr int kType = QTableWidgetItem::UserType + 1;

    LayerCellItem(Look look, LayerAlign align)
        : QTableWidgetItem(kType),
          m_look(std::move(look)),
          m_alignment(align == LayerAlign::Centre ? kAlignCentre : kAlignLeft)
    {
        setFlags(flags() & ~Qt::ItemIsEditable);
    }

    /// Shows something else in the same column. The table is not told of it.
    void setLook(Look look) { m_look = std::move(look); }

    QTableWidgetItem* clone() const override { return new LayerCellItem(*this); }

    QVariant data(int role) const override
    {
        switch (role) {
        case Qt::DisplayRole:
            return m_look->text.isNull() ? QVariant() : m_look->text;
        case Qt::DecorationRole:
            return m_look->icon.isNull() ? QVariant() : m_look->icon;
        case Qt::AccessibleTextRole:
            return m_look->spoken.isNull() ? QVariant() : m_look->spoken;
        case Qt::TextAlignmentRole:
            return m_alignment;
        default:
            return QTableWidgetItem::data(role);
        }
    }

private:
    Look m_look;
    int m_alignment;
};

/// The rows to select. Neighbouring rows are joined, so that selecting thousands of them is one
/// operation.
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

/// So that white is seen on white, and black on a dark ground.
void frameSwatch(QPainter& painter, const QRect& place)
{
    QRect square(0, 0, kSwatchSize, kSwatchSize);
    square.moveCenter(place.center());
    painter.save();
    painter.setPen(Qt::gray);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(square.adjusted(0, 0, -1, -1));
    painter.restore();
}

/// Installs the delegate, which the table owns because it must outlive the object that fills the
/// table.
void prepareDelegate(QTableWidget& table)
{
    auto* delegate = qobject_cast<LayerCellDelegate*>(table.itemDelegate());
    if (!delegate) {
        delegate = new LayerCellDelegate(&table);
        table.setItemDelegate(delegate);
    }
    delegate->forgetSizes();
}

} // namespace

void LayerCellDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    if (cell.icon.isNull() || !(cell.displayAlignment & Qt::AlignHCenter)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const QIcon icon = std::exchange(cell.icon, {});
    const QString text = std::exchange(cell.text, {});
    QStyle* const style = cell.widget ? cell.widget->style() : QApplication::style();
    // Draws everything but icon and text.
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    const bool isSelected = cell.state & QStyle::State_Selected;
    cell.palette.setCurrentColorGroup(
        cell.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive);
    const int gap = text.isEmpty() ? 0 : kSwatchGap;
    const int iconWidth = cell.decorationSize.width();
    const QString fitting = cell.fontMetrics.elidedText(
        text, cell.textElideMode, cell.rect.width() - iconWidth - 2 * gap);
    const QSize content(
        iconWidth + gap + cell.fontMetrics.horizontalAdvance(fitting), cell.rect.height());
    const QRect place = QStyle::alignedRect(cell.direction, Qt::AlignCenter, content, cell.rect);
    const QRect iconPlace = QStyle::alignedRect(
        cell.direction, Qt::AlignLeft | Qt::AlignVCenter, QSize(iconWidth, place.height()), place);
    const bool isSwatch = !text.isEmpty(); // No other cell has both in its middle.
    icon.paint(painter, iconPlace);
    if (isSwatch)
        frameSwatch(*painter, iconPlace);
    style->drawItemText(painter, place,
        QStyle::visualAlignment(cell.direction, Qt::AlignRight | Qt::AlignVCenter), cell.palette,
        true, fitting, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

QSize LayerCellDelegate::sizeHint(
    const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const bool hasIcon = index.data(Qt::DecorationRole).isValid();
    QSize& size = m_sizes[{index.data(Qt::DisplayRole).toString(), hasIcon}];
    if (!size.isValid())
        size = QStyledItemDelegate::sizeHint(option, index);
    return size;
}

const LayerCells::Look& LayerCells::iconLook(LayerIcon icon)
{
    const auto index = static_cast<std::size_t>(icon);
    const IconRow& row = kIcons[index];
    Look& made = m_icons[index];
    if (!made) {
        const QString file =
            QStringLiteral(":/res/Resources/layer_%1.bmp").arg(QLatin1String(row.name));
        QIcon plain(file);
        // Otherwise the style tints it in selected rows, where a green tick hardly shows on blue.
        plain.addFile(file, {}, QIcon::Selected);
        made = makeLook(plain, {}, Texts::tr(row.meaning));
    }
    return made;
}

LayerIcon LayerCells::statusIcon(int status)
{
    switch (status) {
    case kLayerCurrent:
        return LayerIcon::Current;
    case kLayerDelete:
        return LayerIcon::Deleted;
    default:
        return LayerIcon::NoCurrent;
    }
}

LayerIcon LayerCells::stateIcon(bool current)
{
    return current ? LayerIcon::Current : LayerIcon::NoCurrent;
}

const LayerCells::Look& LayerCells::colorLook(const LayerColor& color)
{
    Look& made = m_colors[{color.method, color.value}];
    if (!made) {
        const OdCmColor resolved = color.resolved();
        const QColor shown(resolved.red(), resolved.green(), resolved.blue());
        QPixmap swatch(kSwatchSize, kSwatchSize);
        swatch.fill(shown);
        const QString text = vnutOdStringToQString(hostapi::colorText(resolved));
        made = makeLook(QIcon(swatch), text, text.isEmpty() ? shown.name() : QString());
    }
    return made;
}

const LayerCells::Look& LayerCells::numberLook(LayerCell cell, int number)
{
    Look& made = m_numbers[{static_cast<int>(cell), number}];
    if (!made)
        made = makeLook(
            {}, cell == LayerCell::LineWidth ? lineWidthText(number) : QString::number(number), {});
    return made;
}

LayerCells::Look LayerCells::lookOf(const LayerRecord& record, const LayerColumn& column)
{
    switch (column.cell) {
    case LayerCell::Status:
        return iconLook(statusIcon(record.status()));
    case LayerCell::MarkedName: {
        const LayerCellLook& mark = *iconLook(stateIcon(record.isCurrentOfState()));
        const QString name = vnutOdStringToQString(record.text(column.key));
        return makeLook(mark.icon, name,
            record.isCurrentOfState() ? name + QStringLiteral(", ") + mark.spoken : QString());
    }
    case LayerCell::Toggle:
        return iconLook(record.flag(column.key) ? column.icons.whenTrue : column.icons.whenFalse);
    case LayerCell::Color:
        return colorLook(record.color());
    case LayerCell::LineWidth:
    case LayerCell::Number:
        return numberLook(column.cell, record.number(column.key));
    case LayerCell::Text:
        break;
    }
    return makeLook({}, vnutOdStringToQString(record.text(column.key)), {});
}

QTableWidgetItem* LayerCells::makeItem(const LayerRecord& record, const LayerColumn& column)
{
    return new LayerCellItem(lookOf(record, column), column.align);
}

void LayerCells::refresh(QTableWidget& table, int row, int column, const LayerRecord& record,
    const LayerColumn& description)
{
    if (row < table.rowCount()) // Otherwise the table would not take ownership.
        table.setItem(row, column, makeItem(record, description));
}

void LayerCells::fill(QTableWidget& table, const std::vector<LayerRecord>& records,
    const LayerColumn* columns, int columnCount)
{
    prepareDelegate(table);
    table.setUpdatesEnabled(false);
    table.selectionModel()->clear();
    table.setRowCount(static_cast<int>(records.size()));
    {
        // Signals are blocked so that the table is updated once instead of once per cell.
        const QSignalBlocker quiet(table.model());
        int row = 0;
        for (const LayerRecord& record : records) {
            for (int column = 0; column < columnCount; ++column)
                showIn(table, row, column, record, columns[column]);
            ++row;
        }
    }
    table.selectionModel()->select(selectedRows(table, records), QItemSelectionModel::Select);
    table.setUpdatesEnabled(true);
}

/// Reuses the cell that is there, because removing and making all cells of a long table takes
/// longer than everything else.
void LayerCells::showIn(QTableWidget& table, int row, int column, const LayerRecord& record,
    const LayerColumn& description)
{
    QTableWidgetItem* const item = table.item(row, column);
    if (item && item->type() == LayerCellItem::kType)
        static_cast<LayerCellItem*>(item)->setLook(lookOf(record, description));
    else
        table.setItem(row, column, makeItem(record, description));
}

} // namespace vnsi
