#include "layermodel.h"

#include "layericons.h"

#include <QDataStream>
#include <QElapsedTimer>
#include <QFont>
#include <QMimeData>

#include <algorithm>

namespace {

/// The longest time for which a search may block the window.
constexpr qint64 kSliceMilliseconds = 12;
/// The number of layers that are tested between two looks at the clock.
constexpr size_t kGulp = 16;

} // namespace

LayerModel::LayerModel(QObject* parent) : QAbstractTableModel(parent)
{
    m_scan.setInterval(0);
    connect(&m_scan, &QTimer::timeout, this, &LayerModel::scan);
    connect(&m_order, &LayerOrder::sorted, this, &LayerModel::startScan);
}

void LayerModel::setDrawing(drawing::Drawing* drawing)
{
    if (m_drawing)
        m_drawing->disconnect(this);
    m_drawing = drawing;
    if (m_drawing)
        connect(m_drawing, &drawing::Drawing::layersChanged, this, &LayerModel::follow);
    follow();
}

void LayerModel::setSearch(const LayerTest& test)
{
    m_search = test;
    startScan();
}

void LayerModel::setFilter(const LayerTest& test)
{
    m_filter = test;
    startScan();
}

/// Starts a search. If it fits into one slice, the result is ready immediately.
void LayerModel::startScan()
{
    m_scanned = 0;
    m_passed.clear();
    m_passed.reserve(m_order.places().size());
    m_scan.start();
    scan();
}

void LayerModel::scan()
{
    const std::vector<int>& places = m_order.places();
    QElapsedTimer clock;
    clock.start();
    while (m_scanned < places.size() && clock.elapsed() < kSliceMilliseconds) {
        const size_t end = std::min(places.size(), m_scanned + kGulp);
        for (; m_scanned < end; ++m_scanned) {
            if (passes(places[m_scanned]))
                m_passed.push_back(places[m_scanned]);
        }
    }
    if (m_scanned < places.size())
        return;
    m_scan.stop();
    publish();
}

bool LayerModel::passes(int at)
{
    const LayerRow row{m_layers, at};
    return (!m_filter || m_filter(row)) && (!m_search || m_search(row));
}

void LayerModel::publish()
{
    if (m_passed != m_rows || m_rowsAreGone) {
        m_rowsAreGone = false;
        emit rowsAboutToChange();
        beginResetModel();
        m_rows = std::move(m_passed);
        endResetModel();
        emit rowsChanged();
    }
    m_passed = {};
    if (isSettled())
        emit settled();
}

/// Rows are positions in the snapshot. When the list of layers changes, they are replaced.
void LayerModel::follow()
{
    const bool isNewList = !m_layers.hasListOf(m_drawing);
    if (isNewList) {
        emit rowsAboutToChange();
        beginResetModel();
        m_rows.clear();
    }
    const LayerSnapshot::Differences found = m_layers.follow(m_drawing);
    if (isNewList) {
        endResetModel();
        m_rowsAreGone = true;
    }
    const bool sortsTexts = LayerColumns::at(m_sortColumn).kind == LayerColumn::Text;
    const auto decides = sortsTexts ? LayerSnapshot::Names : LayerSnapshot::Values;
    if (found & (LayerSnapshot::List | decides))
        m_order.sort(m_layers, m_sortColumn, m_direction);
    if (found)
        startScan();
    if (!m_rows.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit drawingChanged();
}

std::vector<int> LayerModel::rowsOf(const std::vector<drawing::LayerId>& layers) const
{
    std::vector<char> isWanted(static_cast<size_t>(m_layers.size()));
    for (const drawing::LayerId id : layers) {
        const int at = m_layers.find(id);
        if (at >= 0)
            isWanted[static_cast<size_t>(at)] = true;
    }
    std::vector<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (isWanted[static_cast<size_t>(m_rows[static_cast<size_t>(row)])])
            rows.push_back(row);
    }
    return rows;
}

int LayerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int LayerModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : LayerColumns::count();
}

QVariant LayerModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const LayerColumn& column = LayerColumns::at(index.column());
    const LayerRow row = layerRow(index.row());
    const bool isPicture = column.kind == LayerColumn::Flag || column.kind == LayerColumn::Mark;
    switch (role) {
    case Qt::DisplayRole:
        return isPicture ? QVariant() : column.displayText(row);
    case Qt::EditRole:
    case Qt::ToolTipRole:
        return column.displayText(row);
    case Qt::AccessibleTextRole:
        return QStringLiteral("%1 %2: %3")
            .arg(row.properties().name, column.displayTitle(), column.displayText(row));
    case Qt::DecorationRole:
        return decoration(column, row);
    case Qt::TextAlignmentRole:
        if (column.kind == LayerColumn::Count || column.kind == LayerColumn::Transparency)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return isPicture ? QVariant(Qt::AlignCenter) : QVariant();
    case Qt::FontRole:
        if (column.kind == LayerColumn::Text && m_layers.isCurrent(row.at)) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

QVariant LayerModel::decoration(const LayerColumn& column, const LayerRow& row) const
{
    if (column.kind == LayerColumn::Color)
        return layericons::swatch(
            column.isOfViewport() ? m_layers.inViewport(row.at) : row.properties());
    if (column.kind == LayerColumn::Flag || column.kind == LayerColumn::Mark)
        return layericons::icon(column.icons[column.number(row) != 0 ? 1 : 0]);
    return {};
}

QVariant LayerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (orientation != Qt::Horizontal || !isTitle)
        return {};
    return LayerColumns::at(section).displayTitle();
}

Qt::ItemFlags LayerModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    const LayerColumn& column = LayerColumns::at(index.column());
    const bool hasPlace = !column.isOfViewport() || m_layers.hasViewport();
    if (column.set && !column.isFlag() && hasPlace)
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool LayerModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid())
        return false;
    if (value.toString() != index.data(Qt::EditRole).toString())
        emit edited(idAt(index.row()), index.column(), value.toString());
    return true;
}

void LayerModel::sort(int column, Qt::SortOrder direction)
{
    if (column < 0)
        return;
    m_sortColumn = column;
    m_direction = direction;
    m_order.sort(m_layers, column, direction);
    if (!m_order.isPending())
        startScan();
}

QString LayerModel::dragType()
{
    return QStringLiteral("application/x-layerbench-layers");
}

QStringList LayerModel::mimeTypes() const
{
    return {dragType()};
}

QMimeData* LayerModel::mimeData(const QModelIndexList& indexes) const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QModelIndex& index : indexes) {
        if (index.column() == LayerColumns::Name)
            stream << static_cast<qint32>(idAt(index.row()));
    }
    auto* const data = new QMimeData;
    data->setData(dragType(), bytes);
    return data;
}

std::vector<drawing::LayerId> LayerModel::dragged(const QMimeData& data)
{
    std::vector<drawing::LayerId> layers;
    QDataStream stream(data.data(dragType()));
    while (!stream.atEnd()) {
        qint32 id = 0;
        stream >> id;
        layers.push_back(static_cast<drawing::LayerId>(id));
    }
    return layers;
}
