#pragma once

#include "layer.h"
#include "tagtext.h"
#include "textcodec.h"

namespace drawing {

/// What a LAYER record says.
struct LayerRecord
{
    LayerProperties properties; ///< `plotStyle` is left empty: a record holds a handle.
    quint64 handle = 0;         ///< 0 when the record has none.
    quint64 plotStyle = 0;      ///< Handle of the plot style name object.
    quint64 material = 0;
    bool hasOwner = false;           ///< Names its table as its owner.
    bool dependsOnReference = false; ///< By its flags; a `|` in the name counts too.
};

/// Reads LAYER records; remembers the last linetype, as runs of layers share theirs.
class LayerRecordReader
{
public:
    explicit LayerRecordReader(const TextCodec& codec) : m_codec(codec) {}
    LayerRecord read(TagReader tags);

private:
    void readTag(const Tag& tag, LayerRecord& record);
    void readXdata(const Tag& tag, LayerRecord& record);

    const TextCodec& m_codec;
    std::string_view m_linetypeBytes;
    QString m_linetype;
    std::string_view m_application; // Whose XDATA is being read.
    int m_strings = 0;              // Of that application so far.
};

/// What a format version can store in a LAYER record.
struct LayerRecordLimits
{
    bool markers = true;    ///< Handle, owner and subclass markers.
    bool plotFlag = true;   ///< 290.
    bool lineweight = true; ///< 370.
    bool trueColor = true;  ///< 420.

    static LayerRecordLimits of(std::string_view version);
};

/// What a new record holds besides the properties.
struct NewLayerRecord
{
    LayerRecordLimits limits;
    TagStyle style;
    quint64 handle = 0;
    quint64 owner = 0; ///< These three: 0 to leave the group out.
    quint64 plotStyle = 0;
    quint64 material = 0;
};

/// XDATA applications the layer properties need.
constexpr char kTransparencyApp[] = "AcCmTransparency";
constexpr char kStandardApp[] = "AcAecLayerStandard";

/// The record with only those groups changed in which `after` differs from `before`.
QByteArray editedLayerRecord(const QByteArray& record, const LayerProperties& before,
    const LayerProperties& after, const TextCodec& codec);

QByteArray newLayerRecord(
    const NewLayerRecord& plan, const LayerProperties& properties, const TextCodec& codec);

} // namespace drawing
