#pragma once

#include "file/taglist.h"
#include "file/textcodec.h"
#include "layers/layertable.h"
#include "layers/linetypetable.h"
#include "layerstate.h"

#include <set>

namespace drawing {

/// What the handles in a drawing's states refer to. Layer state files have no handles.
struct LayerStateHandles
{
    const LayerTable* layers = nullptr;
    const LinetypeTable* linetypes = nullptr;

    QString layerName(quint64 handle) const;
    QString linetypeName(quint64 handle) const;
    /// The handle of a layer; 0 when it has none, so that its name is written instead.
    quint64 layer(const QString& name) const;
    quint64 linetype(const QString& name) const;
};

/// The group codes of a state that name layers.
constexpr int kStateLayerName = 8;
constexpr int kStateCurrentLayer = 302;
constexpr int kStateLayerHandle = 330;

/// What could not be used while reading states.
struct LayerStateUnused
{
    std::set<int> codes; ///< Unknown group codes.
    qint64 maskBits = 0;
    int values = 0; ///< The number of invalid colours and lineweights.
};

/// Builds a state from its tags. Unknown group codes are skipped.
class LayerStateReader
{
public:
    /// `codec` must outlive the reader.
    LayerStateReader(const TextCodec& codec, const LayerStateHandles& handles)
        : m_codec(codec),
          m_handles(handles)
    {
    }

    void take(const Tag& tag);
    /// Discards the layer whose tags were being read.
    void dropOpenLayer();
    /// Returns the state and resets the reader for the next one.
    LayerState finish();
    /// What could not be used in all states read so far.
    const LayerStateUnused& unused() const { return m_unused; }

private:
    struct Decoded
    {
        std::string_view bytes;
        QString text;
    };

    void takeHead(const Tag& tag);
    void takeLayer(const Tag& tag);
    void openLayer(const QString& name);
    void closeLayer();
    const QString& decoded(Decoded& last, std::string_view bytes) const;

    const TextCodec& m_codec;
    LayerStateHandles m_handles;
    LayerState m_state;
    LayerStateLayer m_layer;
    LayerStateUnused m_unused;
    bool m_isLayerOpen = false;
    Decoded m_linetype; // Cached because successive layers often share these.
    Decoded m_plotStyle;
};

/// The tags of a state after its name. `plotStyleCode` is 1 in drawings and 2 in layer state files.
QByteArray layerStateTags(const LayerState& state, const LayerStateHandles& handles,
    int plotStyleCode, const TagStyle& style, const TextCodec& codec);

} // namespace drawing
