#pragma once

#include "file/taglist.h"
#include "file/tagreader.h"
#include "file/textcodec.h"
#include "layer.h"

namespace drawing {

/// What a LAYER record says.
struct LayerRecord
{
    LayerProperties properties; ///< `plotStyle` is left empty: a record holds a handle.
    quint64 handle = 0;         ///< 0 when the record has none.
    quint64 plotStyle = 0;      ///< Handle of the plot style name object.
    quint64 material = 0;
    quint64 extension = 0;           ///< Handle of its extension dictionary.
    bool dependsOnReference = false; ///< By its flags; a `|` in the name counts too.
};

/// Reads LAYER records; remembers the last linetype, as runs of layers share theirs.
class LayerRecordReader
{
public:
    explicit LayerRecordReader(const TextCodec& codec) : m_codec(codec) {}
    LayerRecord read(const TagReader& tags);

private:
    void readOwn(const Tag& tag, LayerRecord& record);
    void readXdata(const Tag& tag, std::string_view application, LayerRecord& record);

    const TextCodec& m_codec;
    std::string_view m_linetypeBytes;
    QString m_linetype;
    int m_strings = 0; // Of the application read, so far.
};

/// The record with only those groups changed in which `after` differs from `before`.
QByteArray editedLayerRecord(TagList record, const LayerProperties& before,
    const LayerProperties& after, const TextCodec& codec);

/// The record with another plot style name object.
QByteArray withPlotStyle(TagList record, quint64 handle);

/// XDATA applications the layer properties need.
constexpr char kTransparencyApp[] = "AcCmTransparency";
constexpr char kStandardApp[] = "AcAecLayerStandard";

} // namespace drawing
