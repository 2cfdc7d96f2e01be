#pragma once

#include "file/drawingfile.h"
#include "layertable.h"

namespace drawing {

/// The records of the LAYER table, including all edits so far.
class LayerRecords
{
public:
    LayerRecords(DrawingFile& file, LayerTable& layers) : m_file(file), m_layers(layers) {}

    TagList tags(const LayerEntry& entry) const;
    void store(const LayerEntry& entry, const QByteArray& record);
    /// Adds a record for `entry` and sets its place and handle.
    void add(LayerEntry& entry);
    void remove(const LayerEntry& entry);
    /// The handle of a layer's record. A record is created for a layer that only entities name.
    quint64 madeHandle(LayerId layer);
    /// The handle of a layer's extension dictionary, which is created when it is missing.
    quint64 madeExtension(LayerId layer);

private:
    DrawingFile& m_file;
    LayerTable& m_layers;
};

} // namespace drawing
