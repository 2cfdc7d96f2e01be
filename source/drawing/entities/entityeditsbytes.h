#pragma once

#include "drawingfile.h"
#include "entitytable.h"

namespace drawing {

/// Writes the name of the layer that an entity is on. An entity that names none gets the group.
void writeLayerName(
    DrawingFile& file, const EntityTable& entities, size_t entity, const QByteArray& name);

/// What an entity can have of its own or take from its layer.
struct ByLayerGroups
{
    bool color = false;
    bool linetype = false;
    bool transparency = false;
    bool lineweight = false;
};

/// Lets an entity take these from its layer.
void forceByLayer(
    DrawingFile& file, EntityTable& entities, size_t entity, const ByLayerGroups& groups);

/// Takes out an entity with all its groups.
void removeEntityBytes(DrawingFile& file, const EntityTable& entities, size_t entity);

} // namespace drawing
