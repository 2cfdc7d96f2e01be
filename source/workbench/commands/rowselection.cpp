#include "rowselection.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QListWidget>

RowSelection::RowSelection(const QStringList& names) : m_names(names.begin(), names.end())
{
    if (!m_names.isEmpty())
        qApp->installEventFilter(this);
}

bool RowSelection::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Show || !qobject_cast<QDialog*>(watched))
        return false;
    if (auto* const list = watched->findChild<QListWidget*>(QStringLiteral("layerList"))) {
        qApp->removeEventFilter(this);
        select(*list);
    }
    return false;
}

void RowSelection::select(QListWidget& list) const
{
    QItemSelection chosen;
    for (int row = 0; row < list.count(); ++row) {
        const QModelIndex index = list.model()->index(row, 0);
        if (m_names.contains(index.data().toString()))
            chosen.append(QItemSelectionRange(index));
    }
    if (chosen.isEmpty())
        return;
    list.setCurrentRow(chosen.first().top());
    list.selectionModel()->select(chosen, QItemSelectionModel::Select);
}
