#pragma once

#include "file/error.h"
#include "layerrecords.h"
#include "leftout.h"
#include "linetypetable.h"
#include "plotstyles.h"

namespace drawing {

/// The edits of single layers. References elsewhere in the file are updated when the step is closed
/// (see `LayerReplacements`).
class LayerEdits
{
public:
    LayerEdits(DrawingFile& file, LayerTable& layers, LayerRecords& records,
        const LinetypeTable& linetypes, const PlotStyles& plotStyles, LeftOut& leftOut)
        : m_file(file),
          m_layers(layers),
          m_records(records),
          m_linetypes(linetypes),
          m_plotStyles(plotStyles),
          m_leftOut(leftOut)
    {
    }

    Expected<void> setProperties(LayerId id, const LayerProperties& properties);
    Expected<LayerId> add(const LayerProperties& properties);
    /// Deletes a layer. Refuses a layer that holds entities.
    Expected<void> remove(LayerId id);
    Expected<void> setCurrent(LayerId id);

    /// Refuses a layer that depends on an external reference.
    Expected<void> checkTarget(LayerId target) const;
    /// Refuses layers that must not be deleted: 0, the current one and those of external
    /// references.
    Expected<void> checkLeaving(const std::vector<LayerId>& layers) const;
    /// Deletes an empty layer. References to it then name the layer `mergedInto`.
    void drop(LayerId layer, LayerId mergedInto);

private:
    Expected<void> checkLeaving(LayerId id) const;
    Expected<void> checkName(const QString& name, LayerId own) const;
    Expected<void> checkRename(const LayerEntry& entry, const QString& name) const;
    Expected<void> checkValues(const LayerProperties& before, const LayerProperties& after) const;
    Expected<LayerProperties> asStored(
        const LayerProperties& before, const LayerProperties& wanted) const;
    void dropUnsupported(const LayerProperties& before, LayerProperties& after);
    void needApplications(const LayerProperties& before, const LayerProperties& after);

    DrawingFile& m_file;
    LayerTable& m_layers;
    LayerRecords& m_records;
    const LinetypeTable& m_linetypes;
    const PlotStyles& m_plotStyles;
    LeftOut& m_leftOut;
};

} // namespace drawing
