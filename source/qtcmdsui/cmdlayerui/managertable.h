#pragma once

#include "layercells.h"

class QTableWidget;

namespace vnsi {

/// The table of the Layer Properties Manager. It shows the records of a tree and edits them when
/// the user clicks. It does not send requests.
class ManagerTable
{
public:
    struct Selection
    {
        int count = 0;
        int last = -1;   ///< The largest selected row; -1 without a selection.
        int latest = -1; ///< The last row in the order of the table's selection ranges.
    };

    /// Uses `table`, which must outlive this object, to show the "LayerList" of `tree`. The tree
    /// may be empty.
    void setUp(QTableWidget& table, const VnJsonPtr& tree);
    /// Rebuilds all rows. The cursor stays where it is or moves to the last selected row.
    void fill();

    LayerRecordList layers() const { return LayerRecordList::of(m_tree); }
    /// The row of the current layer; -1 when there is none.
    int currentRow() const { return m_currentRow; }

    /// Handles a click on a cell. Returns whether it counts as a change.
    bool click(int row, int column);
    /// Turns a layer on in the same way as a click on its cell.
    void turnOn(int row);
    /// The action that a double click on a cell asks for; `None` for a cell outside the table.
    LayerDoubleClick doubleClick(int row, int column) const;
    /// Stores the typed text in the record and updates the cell.
    void setText(int row, LayerDoubleClick edit, const OdString& text);
    /// Makes a layer the current one and the former current layer an ordinary one.
    void makeCurrent(int row);

    /// Sets "Selected" in every record according to the selection.
    Selection writeSelectedRows() const;
    /// Like `writeSelectedRows`, but also writes the selection's key figures into the tree.
    Selection writeSelection() const;
    void clearSelected() const;
    void writeWidths() const;

private:
    void showCell(int row, int column);
    void setStatus(int row, LayerStatus status);

    QTableWidget* m_table = nullptr;
    VnJsonPtr m_tree;
    LayerCells m_cells;
    int m_currentRow = -1;
};

} // namespace vnsi
