#pragma once

#include "drawingdata.h"

namespace drawing {

/// Writes the name of the layer that an entity is on. An entity that names none gets the group.
void writeLayerName(DrawingData& data, size_t entity, const QByteArray& name);

/// What an entity can have of its own or take from its layer.
struct ByLayerGroups
{
    bool color = false;
    bool linetype = false;
    bool transparency = false;
};

/// Lets an entity take these from its layer.
void forceByLayer(DrawingData& data, size_t entity, const ByLayerGroups& groups);

/// Takes out an entity with all its groups.
void removeEntityBytes(DrawingData& data, size_t entity);

} // namespace drawing
