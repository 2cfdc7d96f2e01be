#pragma once

#include "layermask.h"
#include "layerrecords.h"
#include "linetypetable.h"

#include <map>
#include <vector>

namespace drawing {

/// A layer and how it shall look in a viewport.
struct LayerInViewport
{
    LayerId layer = LayerId::None;
    LayerProperties shown;
};

/// What layers look like in one viewport alone. Each layer keeps it in its extension dictionary:
/// an XRECORD a property, with a group for each viewport.
class LayerOverrides
{
public:
    LayerOverrides(DrawingFile& file, const LayerTable& layers, LayerRecords& records,
        const LinetypeTable& linetypes)
        : m_file(file),
          m_layers(layers),
          m_records(records),
          m_linetypes(linetypes)
    {
    }

    /// The properties that can be overridden, as `LayerStateMask` bits.
    static constexpr int kProperties =
        kStateColor | kStateLinetype | kStateLineweight | kStateTransparency;

    /// Gives the layer these properties in the viewport; those in which it is so anyway lose their
    /// override. False when the drawing lacks the linetype, which is then left as it was.
    bool set(LayerId layer, quint64 viewport, const LayerProperties& shown, int properties);

    /// The layers that look otherwise in a viewport, by the viewports' handles.
    std::map<quint64, std::vector<LayerInViewport>> all() const;

private:
    struct Row;
    static const Row kRows[];

    QByteArray group(const Row& row, quint64 viewport, const LayerProperties& shown) const;
    void collect(LayerId layer, std::map<quint64, std::vector<LayerInViewport>>& overridden) const;
    void apply(const Row& row, const Tag& value, LayerProperties& shown) const;
    void write(LayerId layer, const Row& row, quint64 viewport, const QByteArray& group);

    DrawingFile& m_file;
    const LayerTable& m_layers;
    LayerRecords& m_records;
    const LinetypeTable& m_linetypes;
};

} // namespace drawing
