#pragma once

#include "drawingdata.h"
#include "layerstate.h"

#include <optional>

namespace drawing {

/// What layers look like in one viewport alone. Each layer keeps it in its extension dictionary:
/// an XRECORD a property, with a group for each viewport.
class LayerOverrides
{
public:
    explicit LayerOverrides(DrawingData& data) : m_data(data) {}

    /// The properties that can be overridden, as `LayerStateMask` bits.
    static constexpr int kProperties =
        kStateColor | kStateLinetype | kStateLineweight | kStateTransparency;

    /// Gives the layer these properties in the viewport; those in which it is so anyway lose their
    /// override. False when the drawing lacks the linetype, which is then left as it was.
    bool set(LayerId layer, quint64 viewport, const LayerProperties& shown, int properties);

private:
    struct Row;
    static const Row kRows[];

    QByteArray value(int property, const LayerProperties& shown);
    quint64 linetypeHandle(const QString& name);
    void write(LayerId layer, const Row& row, quint64 viewport, const QByteArray& value);
    quint64 madeExtension(LayerId layer);

    DrawingData& m_data;
    std::optional<QHash<QString, quint64>> m_linetypes; ///< By folded name.
};

/// Handle of the layer's extension dictionary; 0 when it has none.
quint64 layerExtension(DrawingData& data, const LayerEntry& entry);

} // namespace drawing
