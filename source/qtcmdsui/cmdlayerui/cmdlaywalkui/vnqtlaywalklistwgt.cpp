#include "vnqtlaywalklistwgt.h"

#include "layernamedelegate.h"

#include <QMouseEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace vnsi {

VnQtLayWalkListWgt::VnQtLayWalkListWgt(QWidget* parent) : QListWidget(parent)
{
    setItemDelegate(new LayerNameDelegate(this));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QListWidget::itemClicked, this, [this] {
        m_isEdited = false;
        m_clicked = selectedRows();
    });
}

void VnQtLayWalkListWgt::setTexts(const QStringList& texts)
{
    const QScopedValueRollback<bool> notByUser(m_isEdited);
    const int kept = std::min(count(), texts.size());
    model()->removeRows(kept, count() - kept);
    for (int row = 0; row < kept; ++row) {
        if (item(row)->text() != texts[row])
            item(row)->setText(texts[row]);
    }
    addItems(texts.mid(kept));
}

VnQtLayWalkListWgt::Rows VnQtLayWalkListWgt::selectedRows() const
{
    Rows rows(static_cast<std::size_t>(count()));
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        const auto begin = rows.begin() + range.top();
        std::fill(begin, begin + range.height(), true);
    }
    return rows;
}

void VnQtLayWalkListWgt::selectRows(const Rows& rows)
{
    const QScopedValueRollback<bool> notByUser(m_isEdited);
    QItemSelection selection;
    const auto index = [this](std::size_t row) { return model()->index(static_cast<int>(row), 0); };
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const std::size_t first = row;
        while (row < rows.size() && rows[row])
            ++row;
        if (row > first)
            selection.append(QItemSelectionRange(index(first), index(row - 1)));
    }
    // This is done in two steps, because replacing one selection by another compares every range
    // with every other.
    selectionModel()->clearSelection();
    selectionModel()->select(selection, QItemSelectionModel::Select);
}

void VnQtLayWalkListWgt::keyPressEvent(QKeyEvent* event)
{
    m_isEdited = false;
    QListWidget::keyPressEvent(event);
    tellIfEdited();
}

void VnQtLayWalkListWgt::mousePressEvent(QMouseEvent* event)
{
    // The right button opens the menu for the selection and must not change it.
    if (event->button() == Qt::RightButton)
        return;
    m_isEdited = false;
    QListWidget::mousePressEvent(event);
}

void VnQtLayWalkListWgt::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton)
        return;
    QListWidget::mouseReleaseEvent(event);
    tellIfEdited();
}

void VnQtLayWalkListWgt::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton)
        QListWidget::mouseDoubleClickEvent(event);
}

void VnQtLayWalkListWgt::selectionChanged(
    const QItemSelection& selected, const QItemSelection& deselected)
{
    QListWidget::selectionChanged(selected, deselected);
    m_isEdited = true;
}

void VnQtLayWalkListWgt::tellIfEdited()
{
    if (std::exchange(m_isEdited, false))
        emit selectionEdited();
}

} // namespace vnsi
