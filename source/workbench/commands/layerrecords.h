#pragma once

#include "layer.h"
#include "vnjson.h"

#include <vector>

namespace drawing {
class Drawing;
}

/// Layers as the records that dialogs work on, and back.
namespace layerrecords {

/// The record of a layer. Besides what dialogs read it keeps the layer's id.
vnsi::VnJsonPtr make(const drawing::Layer& layer, bool current);
/// Writes what the drawing says now into a record; "Selected" stays as it is.
void refresh(const vnsi::VnJsonPtr& record, const drawing::Layer& layer, bool current);
/// The records of all layers in the order people look names up: by name, numbers by their value.
vnsi::VnJsonPtr makeList(const drawing::Drawing& drawing);

/// A true colour as files keep it, red in the high byte, as records do, in the low one; and back.
quint32 swapRedAndBlue(quint32 color);

/// The layer a record was made of; `None` for a record that has none yet.
drawing::LayerId idOf(const vnsi::VnJsonPtr& record);
void setId(const vnsi::VnJsonPtr& record, drawing::LayerId id);
QString nameOf(const vnsi::VnJsonPtr& record);
/// Whether a dialog marked the record, as a flag or as the number 1.
bool isModified(const vnsi::VnJsonPtr& record);
/// The properties in a record; what it has no place for is taken from `base`.
drawing::LayerProperties properties(
    const vnsi::VnJsonPtr& record, const drawing::LayerProperties& base);

} // namespace layerrecords
