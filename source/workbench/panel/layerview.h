#pragma once

#include "layermodel.h"

#include <QTableView>

class QSettings;

/// The table of the layer panel. A click on a flag switches it, for all selected layers if the
/// clicked one is selected. F2 renames, Space switches flags, a column header sorts, and its menu
/// chooses the columns. The selection survives a change of the rows.
class LayerView : public QTableView
{
    Q_OBJECT

public:
    explicit LayerView(LayerModel* model, QWidget* parent = nullptr);

    /// Starts to edit the name of the current layer in its cell.
    void editName();
    /// The selected layers in the order of their rows.
    std::vector<drawing::LayerId> selectedLayers() const;
    void select(const std::vector<drawing::LayerId>& layers);
    /// The layer of the current row; none when there is no current row.
    drawing::LayerId layerInHand() const;
    /// The visible columns in their order.
    std::vector<int> visibleColumns() const;

    void loadState();
    void saveState() const;

signals:
    void toggled(drawing::LayerId layer, int column);
    void colorWanted(drawing::LayerId layer, int column);
    void currentWanted(drawing::LayerId layer);
    void layersSelected(); ///< The selection has changed.
    void copyWanted();
    void pasteWanted();
    void removalWanted();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void selectionChanged(
        const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    bool isFlag(const QModelIndex& index) const;
    bool isForAll(const QModelIndex& index) const;
    void toggleInHand();
    void keepSelection();
    void restoreSelection();
    void showColumnMenu(const QPoint& at);
    void applyHidden();
    void widen(int column, int width);
    void restoreWidths(const QSettings& settings);

    LayerModel* m_model;
    QStringList m_hidden; ///< The keys of the columns that the user has hidden.
    std::vector<drawing::LayerId> m_kept;
    drawing::LayerId m_keptInHand = drawing::LayerId::None;
    int m_keptColumn = 0;
    QPersistentModelIndex m_pressed; ///< The flag under the pressed mouse button.
};
