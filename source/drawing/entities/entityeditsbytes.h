#pragma once

#include "entitytable.h"
#include "file/drawingfile.h"

namespace drawing {

/// Writes the name of an entity's layer into the file; adds the group when the entity has none.
void writeLayerName(
    DrawingFile& file, const EntityTable& entities, size_t entity, const QByteArray& name);

/// Removes an entity's own values of these properties, so that it takes them from its layer.
void forceByLayer(
    DrawingFile& file, EntityTable& entities, size_t entity, OwnProperties properties);

/// Removes an entity with all its groups.
void removeEntityBytes(DrawingFile& file, const EntityTable& entities, size_t entity);

} // namespace drawing
