#pragma once

#include "layerrecord.h"

#include <optional>

/// Names and descriptions of layers as the Layer Properties Manager lets the user type them.
namespace vnsi::layernaming {

/// Whether a layer may be renamed at all; the user is told where it may not.
bool mayRename(const LayerRecord& record);

/// The new name, or description, that the user typed in the host's dialog; none when the user gave
/// up.
std::optional<OdString> askName(const LayerRecord& record);
std::optional<OdString> askDescription(const LayerRecord& record);

/// Stores a typed name in record `row`, without the blanks around it. A name that is refused, which
/// the user is told, leaves the one before.
void storeName(const LayerRecordList& layers, int row, const OdString& typed);

} // namespace vnsi::layernaming
