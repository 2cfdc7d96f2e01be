#pragma once

#include "layeredits.h"

#include <QHash>

namespace drawing {

/// Layers called `NAME @ 1` that hold what annotations on NAME look like at one scale, for programs
/// that do not know scales. Their records point at the layer they are copies of; a name alone
/// proves nothing. They go with it.
class AnnotationCopies
{
public:
    AnnotationCopies(DrawingFile& file, LayerTable& layers, LayerEdits& edits)
        : m_file(file),
          m_layers(layers),
          m_edits(edits)
    {
    }

    /// These layers with their copies, each once. The current layer is not added, as it stays.
    std::vector<LayerId> withCopies(const std::vector<LayerId>& layers) const;
    /// Copies of layers that the open step renamed are called after them; those of merged layers
    /// are copies of the merge targets then, and those of deleted ones that are still there are
    /// plain layers.
    void follow();

private:
    struct Copy
    {
        LayerId layer = LayerId::None;
        LayerId base = LayerId::None; ///< May be gone.
        quint64 record = 0;           ///< Points at the base.
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
