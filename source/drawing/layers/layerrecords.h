#pragma once

#include "file/drawingfile.h"
#include "layertable.h"

namespace drawing {

/// The records of the LAYER table as edited so far.
class LayerRecords
{
public:
    LayerRecords(DrawingFile& file, LayerTable& layers) : m_file(file), m_layers(layers) {}

    TagList tags(const LayerEntry& entry) const;
    void store(const LayerEntry& entry, const QByteArray& record);
    /// Adds a record for `entry`, filling in its place and handle.
    void add(LayerEntry& entry);
    void remove(const LayerEntry& entry);
    /// The handle of a layer's record, which is made where only entities name the layer.
    quint64 madeHandle(LayerId layer);
    /// The handle of a layer's extension dictionary, which is made where it is missing.
    quint64 madeExtension(LayerId layer);

private:
    DrawingFile& m_file;
    LayerTable& m_layers;
};

} // namespace drawing
