#pragma once

#include "layeracts.h"

/// Layers as a table of text, the way spreadsheets exchange them: a line a layer, tabs between the
/// cells, quotes around cells that hold either. The first line names the columns.
namespace layerclipboard {

/// The layers, by their places in the snapshot, in these columns.
QString copied(
    const LayerSnapshot& layers, const std::vector<int>& places, const std::vector<int>& columns);

/// What is pasted.
struct Table
{
    std::vector<QStringList> rows;
    std::vector<int> columns; ///< What each cell of a row is, by the head; empty without one.

    bool isEmpty() const { return rows.empty(); }
    bool hasHead() const { return !columns.empty(); }
};
Table parsed(const QString& text);

/// Pastes into a drawing with an open step. A table with a head finds its layers by their names,
/// and makes those that are missing; one without goes into the columns `visible` from `column` on
/// of the layers `targets`, a single row into all of them. Returns a sentence for what was refused.
QStringList paste(drawing::Drawing& drawing, const Table& table, const layeracts::Layers& targets,
    const std::vector<int>& visible, int column);

} // namespace layerclipboard
