#pragma once

#include "layerfields.h"

#include <QHash>

namespace layertool {

/// A row of a layer table and its position.
struct SheetRow
{
    int line = 0; ///< Counted from 1, including the header.
    QStringList cells;
};

/// The name of a cell in a spreadsheet, such as "C7".
QString cellName(int column, int line);

/// A layer table as `list` writes it and people edit it in a spreadsheet.
class LayerSheet
{
public:
    /// Reads a file. Refuses a table without a header or without a column of names.
    Expected<void> read(const QString& path);

    /// The rows for a drawing; all rows when the table has no column of drawings.
    const std::vector<SheetRow>& rowsFor(const QString& drawing) const;
    int columnCount() const { return static_cast<int>(m_fields.size()); }
    /// The property in a column; null when the column holds none.
    const LayerField* field(int column) const { return m_fields[static_cast<size_t>(column)]; }
    int nameColumn() const { return m_nameColumn; }
    int newNameColumn() const { return m_newNameColumn; } ///< -1 when there is none.
    /// Headers that have no meaning here.
    const QStringList& unknownColumns() const { return m_unknownColumns; }

private:
    void readHead(const QStringList& head);

    std::vector<const LayerField*> m_fields;
    QStringList m_unknownColumns;
    int m_drawingColumn = -1;
    int m_nameColumn = -1;
    int m_newNameColumn = -1;
    /// The keys are drawings; "" when there is no column of drawings.
    QHash<QString, std::vector<SheetRow>> m_rows;
};

} // namespace layertool
