#pragma once

#include "layercells.h"

class QWidget;

namespace vnsi::recordedits {

/// Applies a click on a cell of `column` to the record behind it and asks the user where necessary;
/// `colorQuestion` is the input tree of the colour dialog. Returns false when the click has no
/// effect or was refused. Otherwise the caller must update the cell and treat the layer as
/// modified, even when the user chose nothing.
bool click(const LayerColumn& column, LayerRecord record, bool isCurrent,
    const VnJsonPtr& colorQuestion, QWidget* parent);

} // namespace vnsi::recordedits
