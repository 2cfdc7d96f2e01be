#pragma once

#include "layerrecord.h"

#include <optional>

/// Editing of layer names and descriptions in the Layer Properties Manager.
namespace vnsi::layernaming {

/// Whether a layer can be renamed at all. If not, the user is told why.
bool mayRename(const LayerRecord& record);

/// Asks for a new name or description in the host's dialog. Returns nothing when the user
/// cancelled.
std::optional<OdString> askName(const LayerRecord& record);
std::optional<OdString> askDescription(const LayerRecord& record);

/// Stores a typed name, without surrounding blanks, in record `row`. A name that is not allowed is
/// reported to the user, and the old one stays.
void storeName(const LayerRecordList& layers, int row, const OdString& typed);

} // namespace vnsi::layernaming
