#pragma once

#include "layermodel.h"

#include <QTableView>

/// The table of the layer panel. A click on a flag switches it, for all selected layers when its
/// own is among them; F2 renames, Space switches, the head of a column sorts and its menu chooses
/// columns. What is selected stays so when other rows come.
class LayerView : public QTableView
{
    Q_OBJECT

public:
    explicit LayerView(LayerModel* model, QWidget* parent = nullptr);

    /// Lets the name of the layer in hand be changed in its cell.
    void editName();
    /// In the order of their rows.
    std::vector<drawing::LayerId> selectedLayers() const;
    void select(const std::vector<drawing::LayerId>& layers);
    /// None where no row is the current one.
    drawing::LayerId layerInHand() const;
    /// The columns that are shown, in their order.
    std::vector<int> visibleColumns() const;

    void loadState();
    void saveState() const;

signals:
    void toggled(drawing::LayerId layer, int column);
    void colorWanted(drawing::LayerId layer, int column);
    void currentWanted(drawing::LayerId layer);
    void layersSelected(); ///< Others than before.
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

    LayerModel* m_model;
    QStringList m_hidden; ///< Columns the user does not want, by their keys.
    std::vector<drawing::LayerId> m_kept;
    drawing::LayerId m_keptInHand = drawing::LayerId::None;
    int m_keptColumn = 0;
    QPersistentModelIndex m_pressed; ///< A flag under the button.
};
