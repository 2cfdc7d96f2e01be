#pragma once

#include "layercells.h"

class QWidget;

namespace vnsi::recordedits {

/// Carries out what a click on a cell of `column` does to the record behind it, asking the user
/// where that is due; the colour dialog's tree is `colorQuestion`. False where a click does nothing
/// and where it was refused; otherwise the cell is to be shown anew and the layer counts as
/// modified, also when the user chose nothing.
bool click(const LayerColumn& column, LayerRecord record, bool isCurrent,
    const VnJsonPtr& colorQuestion, QWidget* parent);

} // namespace vnsi::recordedits
