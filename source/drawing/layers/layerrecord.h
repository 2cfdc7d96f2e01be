#pragma once

#include "layer.h"
#include "tagreader.h"
#include "textcodec.h"

namespace drawing {

/// What a LAYER record says.
struct LayerRecord
{
    LayerProperties properties; ///< `plotStyle` is left empty: a record holds a handle.
    quint64 handle = 0;         ///< 0 when the record has none.
    quint64 plotStyle = 0;      ///< Handle of the plot style name object.
    quint64 material = 0;
    bool dependsOnReference = false; ///< By its flags; a `|` in the name counts too.
};

/// Tells of a 102 or 100 tag whether a group of other data begins with it; a subclass marker ends
/// one that was never closed.
bool opensGroup(int code, std::string_view value);

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

/// Bits of a LAYER record's flags, group 70.
constexpr qint64 kLayerFrozen = 1;
constexpr qint64 kLayerFrozenInNewViewports = 2;
constexpr qint64 kLayerLocked = 4;
constexpr qint64 kLayerFromReference = 16;

/// What a format version can store in a LAYER record.
struct LayerRecordLimits
{
    bool markers = true;      ///< Handle, owner and subclass markers.
    bool plotFlag = true;     ///< 290.
    bool lineweight = true;   ///< 370.
    bool trueColor = true;    ///< 420.
    bool softPointers = true; ///< Viewports list frozen layers in 331 groups, before in 341.

    static LayerRecordLimits of(std::string_view version);
};

/// XDATA applications the layer properties need.
constexpr char kTransparencyApp[] = "AcCmTransparency";
constexpr char kStandardApp[] = "AcAecLayerStandard";

} // namespace drawing
