#pragma once

#include "drawing.h"

#include <QTreeWidget>

/// Shows filters. They are identified by the handles of their records; built-in filters have
/// numbers above all handles.
class FilterTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit FilterTree(QWidget* parent = nullptr);

    struct Entry
    {
        quint64 record = 0;
        quint64 parent = 0; ///< 0 at the top level. A parent precedes its children.
        QString name;
        QString explanation; ///< The tool tip.
        bool isEditable = false;
        bool isUsable = true;
        bool takesLayers = false; ///< Whether layers can be dropped on it.
    };
    /// Shows these entries. Selected and collapsed entries stay so.
    void show(const std::vector<Entry>& entries);
    quint64 chosen() const;
    void choose(quint64 record);
    void editName(quint64 record);

signals:
    void renamed(quint64 record, const QString& name);
    void layersDropped(quint64 record, const std::vector<drawing::LayerId>& layers);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    static quint64 recordOf(const QTreeWidgetItem* item);
    QTreeWidgetItem* itemOf(quint64 record) const;
    bool takesLayersAt(const QPoint& at) const;

    QHash<quint64, QTreeWidgetItem*> m_items;
    bool m_isFilling = false;
};
