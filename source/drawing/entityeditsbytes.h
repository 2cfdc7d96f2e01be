#pragma once

#include "drawingdata.h"

namespace drawing {

/// Writes the name of the layer that an entity is on. An entity that names none gets the group.
void writeLayerName(DrawingData& data, size_t entity, const QByteArray& name);

/// Takes out an entity with all its groups.
void removeEntityBytes(DrawingData& data, size_t entity);

} // namespace drawing
