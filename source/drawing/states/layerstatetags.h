#pragma once

#include "layerstate.h"
#include "taglist.h"
#include "textcodec.h"

#include <QHash>

#include <set>

namespace drawing {

/// What the handles in a state stand for.
struct LayerStateNames
{
    QHash<quint64, QString> layers;
    QHash<quint64, QString> linetypes;
};

/// The handles of what a state names, by folded name; what has none is written by name.
struct LayerStateHandles
{
    QHash<QString, quint64> layers;
    QHash<QString, quint64> linetypes;
};

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
    /// Both must outlive the reader.
    LayerStateReader(const TextCodec& codec, const LayerStateNames& names);

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
    const LayerStateNames& m_names;
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
