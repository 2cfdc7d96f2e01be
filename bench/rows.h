#pragma once

#include "comparison.h"

namespace bench {

/// Filling and clicking the table of the Layer Properties Manager.
std::vector<Row> layerTableRows();
/// Opening and saving a drawing, which is generated in `folder`.
std::vector<Row> drawingRows(const QString& folder);
/// The memory that a layer takes in the value tree and in the table.
std::vector<Row> memoryRows();
/// Making, filling and painting each of the thirteen dialogs.
std::vector<Row> dialogRows();
/// Confirming the delete dialog.
std::vector<Row> deleteDialogRows();
/// Mapping layers of the same name in the layer translator.
std::vector<Row> translatorRows();
/// Translating many drawings, which are generated in `folder`, with the batch program.
std::vector<Row> batchRows(const QString& folder);
/// How long the layer panel blocks the window. The drawing is generated in `folder`.
std::vector<Row> panelRows(const QString& folder);
/// Clicking and filtering in the layer walk, including the canvas. The drawing is generated in
/// `folder`.
std::vector<Row> walkRows(const QString& folder);
/// Pictures of large drawings, and how long the window is blocked while a user works on them. The
/// drawings are generated in `folder`.
std::vector<Row> stallRows(const QString& folder);

} // namespace bench
