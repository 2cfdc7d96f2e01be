#pragma once

#include "entities/entitytable.h"
#include "file/error.h"
#include "layeroverrides.h"
#include "layouts.h"

#include <vector>

namespace drawing {

class LayerReplacements;

/// What the viewports of layouts show otherwise than the layers themselves say.
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

    /// Refuses where there is no current viewport, or the format keeps nothing of this.
    Expected<void> check() const;
    /// The layers frozen in the current viewport, ascending.
    std::vector<LayerId> frozen() const;
    /// The same for any viewport, whatever is shown; none in formats that keep nothing of this.
    std::vector<LayerId> frozenIn(const Entity& viewport) const;
    /// 0 for one without.
    quint64 handleOf(const Entity& viewport) const;
    /// Refuses as `check` does.
    Expected<void> setFrozen(const std::vector<LayerId>& layers);
    /// Properties as `LayerStateMask` bits. The layers whose linetype the drawing lacks come back;
    /// refuses as `check` does.
    Expected<std::vector<LayerId>> override(
        const std::vector<LayerInViewport>& layers, int properties);
    /// The layers that look otherwise in the current viewport, ascending.
    std::vector<LayerInViewport> overridden() const;
    /// Takes layers that went out of every viewport's list.
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
