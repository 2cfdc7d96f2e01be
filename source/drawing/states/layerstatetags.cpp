#include "layerstatetags.h"

#include "layers/colorindex.h"

namespace drawing {

namespace {

enum Code {
    kName = 1,
    kPlotStyleByName = 1,
    kPlotStyle = 2,
    kLinetype = 6,
    kColorIndex = 62,
    kFlags = 90,
    kMask = 91,
    kTrueColor = 92,
    kFromLayout = 290,
    kDescription = 301,
    kLinetypeHandle = 331,
    kLineweight = 370,
    kTransparency = 440
};

enum Flag { kOff = 1, kFrozen = 2, kLocked = 4, kPlotted = 8, kNewFrozen = 16, kHereFrozen = 32 };

void readFlags(qint64 flags, LayerStateLayer& layer)
{
    LayerProperties& p = layer.properties;
    p.off = (flags & kOff) != 0;
    p.frozen = (flags & kFrozen) != 0;
    p.locked = (flags & kLocked) != 0;
    p.plotted = (flags & kPlotted) != 0;
    p.frozenInNewViewports = (flags & kNewFrozen) != 0;
    layer.frozenInCurrentViewport = (flags & kHereFrozen) != 0;
}

qint64 flagsOf(const LayerStateLayer& layer)
{
    const LayerProperties& p = layer.properties;
    return (p.off ? kOff : 0) | (p.frozen ? kFrozen : 0) | (p.locked ? kLocked : 0) |
           (p.plotted ? kPlotted : 0) | (p.frozenInNewViewports ? kNewFrozen : 0) |
           (layer.frozenInCurrentViewport ? kHereFrozen : 0);
}

} // namespace

QString LayerStateHandles::layerName(quint64 handle) const
{
    const Layer* layer = layers ? layers->byHandle(handle) : nullptr;
    return layer ? layer->properties.name : QString();
}

QString LayerStateHandles::linetypeName(quint64 handle) const
{
    return linetypes ? linetypes->name(handle) : QString();
}

quint64 LayerStateHandles::layer(const QString& name) const
{
    const Layer* found = layers ? layers->find(name) : nullptr;
    return found ? layers->entry(found->id).handle : 0;
}

quint64 LayerStateHandles::linetype(const QString& name) const
{
    return linetypes ? linetypes->handle(name) : 0;
}

void LayerStateReader::take(const Tag& tag)
{
    if (tag.code == kStateLayerName)
        openLayer(m_codec.decode(tag.trimmed()));
    else if (tag.code == kStateLayerHandle)
        openLayer(m_handles.layerName(tag.handle()));
    else if (m_isLayerOpen)
        takeLayer(tag);
    else
        takeHead(tag);
}

void LayerStateReader::takeHead(const Tag& tag)
{
    switch (tag.code) {
    case kName:
        m_state.name = m_codec.decode(tag.text());
        break;
    case kMask:
        m_state.mask = static_cast<int>(tag.integer() & kStateEverything);
        m_unused.maskBits |= tag.integer() & ~qint64(kStateEverything);
        break;
    case kDescription:
        m_state.description = m_codec.decode(tag.text());
        break;
    case kFromLayout:
        m_state.fromLayout = tag.integer() != 0;
        break;
    case kStateCurrentLayer:
        m_state.currentLayer = m_codec.decode(tag.trimmed());
        break;
    default:
        m_unused.codes.insert(tag.code);
    }
}

void LayerStateReader::takeLayer(const Tag& tag)
{
    LayerProperties& p = m_layer.properties;
    switch (tag.code) {
    case kPlotStyleByName:
    case kPlotStyle:
        p.plotStyle = decoded(m_plotStyle, tag.trimmed());
        break;
    case kLinetype:
        p.linetype = decoded(m_linetype, tag.trimmed());
        break;
    case kLinetypeHandle:
        if (const QString name = m_handles.linetypeName(tag.handle()); !name.isNull())
            p.linetype = name;
        break;
    case kColorIndex:
        if (const qint64 index = withoutSign(tag.integer()); isColorIndex(index))
            p.colorIndex = static_cast<int>(index);
        else
            ++m_unused.values;
        break;
    case kFlags:
        readFlags(tag.integer(), m_layer);
        break;
    case kTrueColor: {
        // Some programs store the colour's method above its three parts.
        const PackedColor color(tag.integer());
        if (color.method == PackedColor::None || color.method == PackedColor::TrueColor)
            p.trueColor = color.value;
        else
            ++m_unused.values;
        break;
    }
    case kLineweight:
        if (isLineweight(static_cast<int>(tag.integer())))
            p.lineweight = static_cast<int>(tag.integer());
        else
            ++m_unused.values;
        break;
    case kTransparency:
        p.transparency = transparencyPercent(tag.integer());
        break;
    default:
        m_unused.codes.insert(tag.code);
    }
}

const QString& LayerStateReader::decoded(Decoded& last, std::string_view bytes) const
{
    if (last.bytes != bytes || last.text.isNull())
        last = {bytes, m_codec.decode(bytes)};
    return last.text;
}

void LayerStateReader::openLayer(const QString& name)
{
    closeLayer();
    m_layer = {};
    m_layer.properties.name = name;
    m_isLayerOpen = true;
}

void LayerStateReader::closeLayer()
{
    // A layer with an unknown handle has no name and is dropped.
    if (m_isLayerOpen && !m_layer.properties.name.isEmpty())
        m_state.layers.push_back(m_layer);
    m_isLayerOpen = false;
}

void LayerStateReader::dropOpenLayer()
{
    m_isLayerOpen = false;
}

LayerState LayerStateReader::finish()
{
    closeLayer();
    return std::exchange(m_state, {});
}

QByteArray layerStateTags(const LayerState& state, const LayerStateHandles& handles,
    int plotStyleCode, const TagStyle& style, const TextCodec& codec)
{
    QByteArray bytes = style.number(kMask, state.mask) +
                       style.tag(kDescription, codec.encode(state.description)) +
                       style.number(kFromLayout, state.fromLayout ? 1 : 0) +
                       style.tag(kStateCurrentLayer, codec.encode(state.currentLayer));
    for (const LayerStateLayer& layer : state.layers) {
        const LayerProperties& p = layer.properties;
        const quint64 own = handles.layer(p.name);
        const quint64 linetype = handles.linetype(p.linetype);
        bytes += own != 0 ? style.handle(kStateLayerHandle, own)
                          : style.tag(kStateLayerName, codec.encode(p.name));
        bytes += style.number(kFlags, flagsOf(layer)) + style.number(kColorIndex, p.colorIndex) +
                 style.number(kLineweight, p.lineweight);
        bytes += linetype != 0 ? style.handle(kLinetypeHandle, linetype)
                               : style.tag(kLinetype, codec.encode(p.linetype));
        bytes += style.tag(plotStyleCode, codec.encode(p.plotStyle)) +
                 style.number(
                     kTransparency, p.transparency == 0 ? 0 : storedTransparency(p.transparency));
        if (p.trueColor)
            bytes += style.number(kTrueColor, *p.trueColor);
    }
    return bytes;
}

} // namespace drawing
