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
    /// One item for each layer, in one go. What was selected or current stays so as long as it is
    /// listed.
    void fill(const std::vector<TranslationLists::Source>& layers, LayerCells& cells);
    void fill(const std::vector<TargetRecord>& layers, LayerCells& cells);
    /// From top to bottom.
    std::vector<int> selectedRows() const;
    /// Adds every item whose text is `name`, letter case apart, to the selection.
    void addToSelection(const QString& name);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void fill(const QStringList& names, const std::vector<bool>& marks, LayerCells& cells);
    QStringList selectedNames() const;
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
    void fill(const std::vector<TranslationLists::Mapping>& mappings);
    /// The selected row; -1 when none is.
    int selectedRow() const;
};

} // namespace vnsi
