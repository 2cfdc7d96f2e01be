#pragma once

#include "entitytable.h"
#include "file/drawingfile.h"

namespace drawing {

/// Writes the name of the layer that an entity is on. An entity that names none gets the group.
void writeLayerName(
    DrawingFile& file, const EntityTable& entities, size_t entity, const QByteArray& name);

/// Lets an entity take these from its layer.
void forceByLayer(
    DrawingFile& file, EntityTable& entities, size_t entity, OwnProperties properties);

/// Takes out an entity with all its groups.
void removeEntityBytes(DrawingFile& file, const EntityTable& entities, size_t entity);

} // namespace drawing
