#pragma once

#include "file/taglist.h"
#include "file/textcodec.h"
#include "layers/layertable.h"
#include "layers/linetypetable.h"
#include "layerstate.h"

#include <set>

namespace drawing {

/// What the handles in a drawing's states stand for; files of states have none.
struct LayerStateHandles
{
    const LayerTable* layers = nullptr;
    const LinetypeTable* linetypes = nullptr;

    QString layerName(quint64 handle) const;
    QString linetypeName(quint64 handle) const;
    /// 0 for what has none and is written by name.
    quint64 layer(const QString& name) const;
    quint64 linetype(const QString& name) const;
};

/// The groups of a state that name layers.
constexpr int kStateLayerName = 8;
constexpr int kStateCurrentLayer = 302;
constexpr int kStateLayerHandle = 330;

/// What of the tags of states said nothing that can be used.
struct LayerStateUnused
{
    std::set<int> codes; ///< Groups nobody knows.
    qint64 maskBits = 0;
    int values = 0; ///< Colours and lineweights that do not exist.
};

/// Puts a state together from its tags. Codes it does not know are skipped.
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
    /// Forgets the layer whose tags were being read.
    void dropOpenLayer();
    /// The state as read; the reader is then empty.
    LayerState finish();
    /// Of all states since the beginning.
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
    Decoded m_linetype; // Runs of layers share these.
    Decoded m_plotStyle;
};

/// The tags of a state behind its name. `plotStyleCode` is 1 in drawings and 2 in files of states.
QByteArray layerStateTags(const LayerState& state, const LayerStateHandles& handles,
    int plotStyleCode, const TagStyle& style, const TextCodec& codec);

} // namespace drawing
