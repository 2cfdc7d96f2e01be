#pragma once

#include "translationlists.h"

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
    /// Shows one item for each layer. Items that were selected or current keep that state if they
    /// are still listed.
    void fill(const std::vector<TranslationLists::Source>& layers, LayerCells& cells);
    void fill(const std::vector<TargetRecord>& layers, LayerCells& cells);
    /// The selected rows from top to bottom.
    std::vector<int> selectedRows() const;
    /// Adds every item whose text is `name`, ignoring letter case, to the selection.
    void addToSelection(const QString& name);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void fill(const QStringList& names, const std::vector<bool>& marks, LayerCells& cells);
    QStringList selectedNames() const;
    void selectNames(const QStringList& names, const QString& current);

    QMenu* m_menu;
};

/// The table of mappings with one row per mapping. Its cells cannot be edited in place.
class VnQtLaytransQTableWgt : public QTableWidget
{
    Q_OBJECT

public:
    explicit VnQtLaytransQTableWgt(QWidget* parent = nullptr);

    /// Shows one row for each mapping.
    void fill(const std::vector<TranslationLists::Mapping>& mappings);
    /// The selected row; -1 when there is none.
    int selectedRow() const;
};

} // namespace vnsi
