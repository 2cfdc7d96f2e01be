#pragma once

#include "layeracts.h"

/// Layers as a text table in the form that spreadsheets exchange: one line per layer, tabs between
/// cells, and quotes around cells that contain tabs or line ends. The first line names the columns.
namespace layerclipboard {

/// The text of layers, given by their positions in the snapshot, with these columns.
QString copied(
    const LayerSnapshot& layers, const std::vector<int>& places, const std::vector<int>& columns);

/// A pasted table.
struct Table
{
    std::vector<QStringList> rows;
    /// The column of each cell in a row according to the header; empty without a header.
    std::vector<int> columns;

    bool isEmpty() const { return rows.empty(); }
    bool hasHead() const { return !columns.empty(); }
};
Table parsed(const QString& text);

/// Pastes a table into a drawing with an open step. A table with a header finds its layers by their
/// names and creates missing ones. A table without a header fills the columns `visible`, beginning
/// at `column`, of the layers `targets`; a single row fills all of them. Returns sentences about
/// what was refused.
QStringList paste(drawing::Drawing& drawing, const Table& table, const layeracts::Layers& targets,
    const std::vector<int>& visible, int column);

} // namespace layerclipboard
