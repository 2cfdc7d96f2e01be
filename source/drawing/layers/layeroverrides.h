#pragma once

#include "layermask.h"
#include "layerrecords.h"
#include "linetypetable.h"

#include <map>
#include <vector>

namespace drawing {

/// A layer and its properties in a viewport.
struct LayerInViewport
{
    LayerId layer = LayerId::None;
    LayerProperties shown;
};

/// The properties that layers have in one viewport only. Each layer stores them in its extension
/// dictionary: one XRECORD per property, with one group per viewport.
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

    /// Sets these properties of a layer in a viewport. Properties that equal the layer's own lose
    /// their override. Returns false when the drawing does not have the linetype; its override is
    /// then left unchanged.
    bool set(LayerId layer, quint64 viewport, const LayerProperties& shown, int properties);

    /// All layers with overrides, by the handle of the viewport.
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
