#pragma once

#include "file/error.h"
#include "layerrecords.h"
#include "leftout.h"
#include "linetypetable.h"
#include "plotstyles.h"

namespace drawing {

/// The edits of single layers. What other places of the file say of them follows when the step is
/// closed, see `LayerReplacements`.
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
    /// Refuses a layer that something is on.
    Expected<void> remove(LayerId id);
    Expected<void> setCurrent(LayerId id);

    /// Refuses a layer that depends on a reference.
    Expected<void> checkTarget(LayerId target) const;
    /// Refuses layers that have to stay: 0, the current one and those of external references.
    Expected<void> checkLeaving(const std::vector<LayerId>& layers) const;
    /// Takes out a layer that nothing is on; what names it names the other one then.
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
