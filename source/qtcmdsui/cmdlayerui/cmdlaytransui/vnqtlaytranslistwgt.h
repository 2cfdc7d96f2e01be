#pragma once

#include "vnjson.h"

#include <QListWidget>
#include <QTableWidget>

class QMenu;

namespace vnsi {

class LayerCells;

/// A list of layers with a context menu.
class VnQtLaytransListWgt : public QListWidget
{
    Q_OBJECT

public:
    explicit VnQtLaytransListWgt(QWidget* parent = nullptr);

    QMenu& menu() const { return *m_menu; }
    /// One item for each record, named and marked by what it has under the keys, in one go. What
    /// was selected or current stays so as long as it is listed.
    void fill(
        const VnJsonPtr& records, const char* nameKey, const char* usedKey, LayerCells& cells);
    /// The names of the selected items, from top to bottom.
    QStringList selectedNames() const;
    /// Adds every item whose text is `name`, letter case apart, to the selection.
    void addToSelection(const QString& name);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void selectNames(const QStringList& names, const QString& current);

    QMenu* m_menu;
};

/// The table of mappings: one row a mapping, nothing edited in place.
class VnQtLaytransQTableWgt : public QTableWidget
{
    Q_OBJECT

public:
    explicit VnQtLaytransQTableWgt(QWidget* parent = nullptr);

    /// One row for each mapping, in one go.
    void fill(const VnJsonPtr& mappings);
    /// The selected row; -1 when none is.
    int selectedRow() const;
};

} // namespace vnsi
