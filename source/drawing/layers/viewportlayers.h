#pragma once

#include "entities/entitytable.h"
#include "file/error.h"
#include "layeroverrides.h"
#include "layouts.h"

#include <vector>

namespace drawing {

class LayerReplacements;

/// The layers that are frozen or have overrides in the viewports of layouts.
class ViewportLayers
{
public:
    ViewportLayers(DrawingFile& file, const EntityTable& entities, const LayoutTable& layouts,
        const LayerTable& layers, LayerRecords& records, LayerOverrides& overrides)
        : m_file(file),
          m_entities(entities),
          m_layouts(layouts),
          m_layers(layers),
          m_records(records),
          m_overrides(overrides)
    {
    }

    /// Refuses when there is no current viewport or when the format cannot store such properties.
    Expected<void> check() const;
    /// The layers that are frozen in the current viewport, in ascending order.
    std::vector<LayerId> frozen() const;
    /// The layers frozen in any viewport, whatever is shown. Empty when the format cannot store
    /// them.
    std::vector<LayerId> frozenIn(const Entity& viewport) const;
    /// The handle of a viewport; 0 when it has none.
    quint64 handleOf(const Entity& viewport) const;
    /// Freezes exactly these layers in the current viewport. Refuses when `check` does.
    Expected<void> setFrozen(const std::vector<LayerId>& layers);
    /// Overrides properties, given as `LayerStateMask` bits, in the current viewport. Returns the
    /// layers whose linetype the drawing does not have. Refuses when `check` does.
    Expected<std::vector<LayerId>> override(
        const std::vector<LayerInViewport>& layers, int properties);
    /// The layers with overrides in the current viewport, in ascending order.
    std::vector<LayerInViewport> overridden() const;
    /// Removes deleted layers from the lists of all viewports.
    void follow(const LayerReplacements& replacements);

private:
    struct FrozenList;

    const Entity& current() const;
    qint64 placeOfHandle(const Entity& viewport) const;
    quint64 madeHandle(const Entity& viewport);
    FrozenList list(const Entity& viewport) const;
    void write(const FrozenList& list, const std::vector<quint64>& added);

    DrawingFile& m_file;
    const EntityTable& m_entities;
    const LayoutTable& m_layouts;
    const LayerTable& m_layers;
    LayerRecords& m_records;
    LayerOverrides& m_overrides;
};

} // namespace drawing
