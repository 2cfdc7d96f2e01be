#pragma once

#include "layerrecord.h"
#include "taglist.h"

namespace drawing {

/// What a new record holds besides the properties.
struct NewLayerRecord
{
    LayerRecordLimits limits;
    TagStyle style;
    quint64 handle = 0;
    quint64 owner = 0; ///< These three: 0 to leave the group out.
    quint64 plotStyle = 0;
    quint64 material = 0;
};

/// The record with only those groups changed in which `after` differs from `before`.
QByteArray editedLayerRecord(TagList record, const LayerProperties& before,
    const LayerProperties& after, const TextCodec& codec);

/// The record with another plot style name object.
QByteArray withPlotStyle(TagList record, quint64 handle);

QByteArray newLayerRecord(
    const NewLayerRecord& plan, const LayerProperties& properties, const TextCodec& codec);

} // namespace drawing
