#pragma once

#include "layerfields.h"

#include <QHash>

namespace layertool {

/// A row of a table of layers, and where it stands in it.
struct SheetRow
{
    int line = 0; ///< From 1, the head included.
    QStringList cells;
};

/// The name of a cell as spreadsheets call it: "C7".
QString cellName(int column, int line);

/// A table of layers as `list` writes it, edited in a spreadsheet.
class LayerSheet
{
public:
    /// Reads a file. Refuses one without a head, or without a column of names.
    Expected<void> read(const QString& path);

    /// The rows for a drawing: all of them where the table has no column of drawings.
    const std::vector<SheetRow>& rowsFor(const QString& drawing) const;
    int columnCount() const { return static_cast<int>(m_fields.size()); }
    /// The property in a column; null for columns that hold none.
    const LayerField* field(int column) const { return m_fields[static_cast<size_t>(column)]; }
    int nameColumn() const { return m_nameColumn; }
    int newNameColumn() const { return m_newNameColumn; } ///< -1 where there is none.
    /// Heads that mean nothing here.
    const QStringList& unknownColumns() const { return m_unknownColumns; }

private:
    void readHead(const QStringList& head);

    std::vector<const LayerField*> m_fields;
    QStringList m_unknownColumns;
    int m_drawingColumn = -1;
    int m_nameColumn = -1;
    int m_newNameColumn = -1;
    QHash<QString, std::vector<SheetRow>> m_rows; ///< By drawing; "" where there is no such column.
};

} // namespace layertool
