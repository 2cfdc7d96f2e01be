#pragma once

#include "layeredits.h"

#include <QHash>

namespace drawing {

/// Maintains layers named like `NAME @ 1`. They hold a copy of the annotations of layer NAME at one
/// scale, for programs that do not support annotation scales. The record of such a copy points at
/// its base layer; a matching name alone proves nothing. Copies are renamed and deleted together
/// with their base layer.
class AnnotationCopies
{
public:
    AnnotationCopies(DrawingFile& file, LayerTable& layers, LayerEdits& edits)
        : m_file(file),
          m_layers(layers),
          m_edits(edits)
    {
    }

    /// These layers and their copies, each once. The current layer is not added because it must
    /// stay.
    std::vector<LayerId> withCopies(const std::vector<LayerId>& layers) const;
    /// Updates the copies after layers changed in the open step. Copies of renamed layers are
    /// renamed, copies of merged layers become copies of the merge target, and remaining copies of
    /// deleted layers become ordinary layers.
    void follow();

private:
    struct Copy
    {
        LayerId layer = LayerId::None;
        LayerId base = LayerId::None; ///< May no longer exist.
        quint64 record = 0;           ///< The record that points at the base.
    };

    std::vector<Copy> copies() const;
    LayerId baseOf(quint64 record, const QHash<quint64, LayerId>& gone) const;
    void followBase(const Copy& copy, const LayerEntry& before);
    void rename(LayerId copy, const QString& oldBase, const QString& base);
    void pointAt(quint64 record, quint64 oldBase, quint64 base);

    DrawingFile& m_file;
    LayerTable& m_layers;
    LayerEdits& m_edits;
};

} // namespace drawing
