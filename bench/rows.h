#pragma once

#include "comparison.h"

namespace bench {

/// Filling and clicking the table of the Layer Properties Manager.
std::vector<Row> layerTableRows();
/// Opening and saving a drawing; it is generated in `folder`.
std::vector<Row> drawingRows(const QString& folder);
/// What a layer takes in the value tree and in the table.
std::vector<Row> memoryRows();
/// Making, filling and painting each of the thirteen dialogs.
std::vector<Row> dialogRows();
/// Confirming the delete dialog.
std::vector<Row> deleteDialogRows();
/// Mapping layers of the same name in the layer translator.
std::vector<Row> translatorRows();
/// Translating many drawings, which are generated in `folder`, with the batch program.
std::vector<Row> batchRows(const QString& folder);
/// How long the window stands still for the layer panel; the drawing for it is generated in
/// `folder`.
std::vector<Row> panelRows(const QString& folder);
/// Clicking and filtering in the layer walk, and the canvas that follows; the drawing for it is
/// generated in `folder`.
std::vector<Row> walkRows(const QString& folder);
/// The picture of large drawings, and how long the window does not answer while a user works on
/// them; they are generated in `folder`.
std::vector<Row> stallRows(const QString& folder);

} // namespace bench
