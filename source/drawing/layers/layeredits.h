#pragma once

#include "drawingdata.h"
#include "error.h"

namespace drawing {

/// The edits of single layers. What other places of the file say of them follows when the step is
/// closed, see `updateReferences`.
class LayerEdits
{
public:
    explicit LayerEdits(DrawingData& data) : m_data(data) {}

    Expected<void> setProperties(LayerId id, const LayerProperties& properties);
    Expected<LayerId> add(const LayerProperties& properties);
    Expected<void> remove(LayerId id);
    Expected<void> setCurrent(LayerId id);

private:
    Expected<void> checkName(const QString& name, LayerId own) const;
    Expected<void> checkRename(const LayerEntry& entry, const QString& name) const;
    Expected<void> checkValues(const LayerProperties& before, const LayerProperties& after) const;
    Expected<LayerProperties> settled(
        const LayerProperties& before, const LayerProperties& wanted) const;
    void dropUnsupported(const LayerProperties& before, LayerProperties& after);
    quint64 plotStyleHandle(const LayerEntry& entry, const QString& wanted) const;
    void needApplications(const LayerProperties& before, const LayerProperties& after);

    DrawingData& m_data;
};

} // namespace drawing
