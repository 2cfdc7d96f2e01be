#pragma once

#include "file/taglist.h"
#include "file/tagreader.h"
#include "file/textcodec.h"
#include "layer.h"

namespace drawing {

/// The contents of a LAYER record.
struct LayerRecord
{
    /// `plotStyle` is left empty because a record holds a handle instead of the name.
    LayerProperties properties;
    quint64 handle = 0;    ///< 0 when the record has none.
    quint64 plotStyle = 0; ///< The handle of the plot style object.
    quint64 material = 0;
    quint64 extension = 0;           ///< The handle of its extension dictionary.
    bool dependsOnReference = false; ///< Set by the record's flags, or by a `|` in the name.
};

/// Reads LAYER records. It remembers the last linetype because successive layers often share it.
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
    int m_strings = 0; // The number of strings read so far in the current application's data.
};

/// The record with only those groups changed in which `after` differs from `before`.
QByteArray editedLayerRecord(TagList record, const LayerProperties& before,
    const LayerProperties& after, const TextCodec& codec);

/// The record with another plot style object.
QByteArray withPlotStyle(TagList record, quint64 handle);

/// The XDATA applications that layer properties need.
constexpr char kTransparencyApp[] = "AcCmTransparency";
constexpr char kStandardApp[] = "AcAecLayerStandard";

} // namespace drawing
