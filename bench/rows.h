#pragma once

#include "comparison.h"

namespace bench {

/// Filling and clicking the table of the Layer Properties Manager.
std::vector<Row> layerTableRows();
/// Opening and saving a drawing; it is generated in `folder`.
std::vector<Row> drawingRows(const QString& folder);
/// Confirming the delete dialog.
std::vector<Row> deleteDialogRows();

} // namespace bench
