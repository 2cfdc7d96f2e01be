#pragma once

#include "layercells.h"

class QTableWidget;

namespace vnsi {

/// The table of the Layer Properties Manager: shows the records of a tree and edits them where the
/// user clicks. It sends nothing.
class ManagerTable
{
public:
    struct Selection
    {
        int count = 0;
        int last = -1;   ///< The largest row; -1 without a selection.
        int latest = -1; ///< The last row by the order of the table's ranges.
    };

    /// Takes a table, which outlives it, and the tree whose "LayerList" it shows, which may be
    /// empty.
    void setUp(QTableWidget& table, const VnJsonPtr& tree);
    /// Rebuilds all rows. The cursor stays, or goes to the last selected one.
    void fill();

    LayerRecordList layers() const { return LayerRecordList::of(m_tree); }
    /// The row of the current layer; -1 where there is none.
    int currentRow() const { return m_currentRow; }

    /// A click on a cell; true where it counts as a change.
    bool click(int row, int column);
    /// Turns a layer on as a click on that cell does.
    void turnOn(int row);
    /// What a double click on a cell asks for; `None` for a cell that the table does not have.
    LayerDoubleClick doubleClick(int row, int column) const;
    /// Gives a record's text member what the user typed, and shows it.
    void setText(int row, LayerDoubleClick edit, const OdString& text);
    /// Makes a layer the current one and the former an ordinary one.
    void makeCurrent(int row);

    /// Writes "Selected" into every record.
    Selection writeSelectedRows() const;
    /// Also the selection's figures into the tree.
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
