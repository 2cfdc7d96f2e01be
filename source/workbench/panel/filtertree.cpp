#include "filtertree.h"

#include "layermodel.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QSet>

namespace {

constexpr int kRecordRole = Qt::UserRole;
constexpr int kTakesLayersRole = Qt::UserRole + 1;

} // namespace

FilterTree::FilterTree(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("filterTree"));
    setAccessibleName(tr("图层过滤器"));
    setHeaderHidden(true);
    setAcceptDrops(true);
    setDragDropMode(DropOnly);
    setEditTriggers(EditKeyPressed);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
        if (!m_isFilling)
            emit renamed(recordOf(item), item->text(0));
    });
}

quint64 FilterTree::recordOf(const QTreeWidgetItem* item)
{
    return item ? item->data(0, kRecordRole).toULongLong() : 0;
}

QTreeWidgetItem* FilterTree::itemOf(quint64 record) const
{
    return m_items.value(record);
}

void FilterTree::show(const std::vector<Entry>& entries)
{
    const quint64 before = chosen();
    QSet<quint64> folded;
    for (auto known = m_items.cbegin(); known != m_items.cend(); ++known) {
        if (known.value()->childCount() > 0 && !known.value()->isExpanded())
            folded.insert(known.key());
    }
    m_isFilling = true;
    const QSignalBlocker quiet(this);
    clear();
    m_items.clear();
    for (const Entry& entry : entries) {
        QTreeWidgetItem* const around = itemOf(entry.parent);
        auto* const item = around ? new QTreeWidgetItem(around) : new QTreeWidgetItem(this);
        Qt::ItemFlags flags = Qt::ItemIsSelectable;
        flags.setFlag(Qt::ItemIsEnabled, entry.isUsable);
        flags.setFlag(Qt::ItemIsEditable, entry.isEditable);
        flags.setFlag(Qt::ItemIsDropEnabled, entry.takesLayers);
        item->setFlags(flags);
        item->setText(0, entry.name);
        item->setToolTip(0, entry.explanation);
        item->setData(0, kRecordRole, entry.record);
        item->setData(0, kTakesLayersRole, entry.takesLayers);
        m_items.insert(entry.record, item);
    }
    expandAll();
    for (const quint64 record : folded) {
        if (QTreeWidgetItem* const item = itemOf(record))
            item->setExpanded(false);
    }
    setCurrentItem(itemOf(before) ? itemOf(before) : topLevelItem(0));
    m_isFilling = false;
}

quint64 FilterTree::chosen() const
{
    return recordOf(currentItem());
}

void FilterTree::choose(quint64 record)
{
    setCurrentItem(itemOf(record));
}

void FilterTree::editName(quint64 record)
{
    if (QTreeWidgetItem* const item = itemOf(record))
        editItem(item);
}

bool FilterTree::takesLayersAt(const QPoint& at) const
{
    const QTreeWidgetItem* const item = itemAt(at);
    return item && item->data(0, kTakesLayersRole).toBool();
}

void FilterTree::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(event->mimeData()->hasFormat(LayerModel::dragType()));
}

void FilterTree::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeWidget::dragMoveEvent(event);
    event->setAccepted(
        event->mimeData()->hasFormat(LayerModel::dragType()) && takesLayersAt(event->pos()));
}

void FilterTree::dropEvent(QDropEvent* event)
{
    if (!takesLayersAt(event->pos()))
        return event->ignore();
    event->acceptProposedAction();
    const quint64 record = recordOf(itemAt(event->pos()));
    setState(NoState);
    emit layersDropped(record, LayerModel::dragged(*event->mimeData()));
}
