#include "layerrecords.h"

#include "file/groupcode.h"
#include "layertablerecord.h"

namespace drawing {

TagList LayerRecords::tags(const LayerEntry& entry) const
{
    return entry.isOfFile()
               ? m_file.current(entry.range())
               : m_file.tagList(m_file.journal().inserted(entry.place.begin, entry.place.order));
}

void LayerRecords::store(const LayerEntry& entry, const QByteArray& record)
{
    if (entry.isOfFile())
        m_file.journal().replace(entry.range(), record);
    else
        m_file.journal().insert(entry.place.begin, entry.place.order, record);
}

void LayerRecords::add(LayerEntry& entry)
{
    SymbolTables& tables = m_file.tables();
    const TagStyle style = tables.style(TableKind::Layer);
    // A new layer gets these values from layer 0, because the drawing's other layers share them.
    LayerRecord zero;
    if (const LayerEntry& model = m_layers.entry(m_layers.zero()); model.isOfFile())
        zero = LayerRecordReader(m_file.codec()).read(m_file.tags(model.range()));
    LayerProperties plain;
    plain.name = entry.layer.properties.name;
    const SymbolTables::NewRecord made = tables.begin(TableKind::Layer);
    entry.handle = made.handle;
    entry.plotStyle = zero.plotStyle;
    QByteArray record = made.head + style.tag(group::kName, m_file.encoded(plain.name)) +
                        style.number(group::kFlags, 0) +
                        style.number(group::kColor, plain.colorIndex) +
                        style.tag(group::kLinetype, m_file.encoded(plain.linetype));
    if (m_file.limits().lineweight)
        record += style.number(group::kLineweight, plain.lineweight);
    if (zero.plotStyle != 0)
        record += style.handle(group::kPlotStyle, zero.plotStyle);
    if (zero.material != 0)
        record += style.handle(group::kMaterial, zero.material);
    entry.place = tables.insert(TableKind::Layer,
        editedLayerRecord(m_file.tagList(record), plain, entry.layer.properties, m_file.codec()));
    entry.end = entry.place.begin;
    entry.hasRecord = true;
}

void LayerRecords::remove(const LayerEntry& entry)
{
    if (!entry.hasRecord)
        return;
    if (entry.isOfFile())
        m_file.journal().replace(entry.range(), {});
    else
        m_file.journal().removeInsertion(entry.place.begin, entry.place.order);
    m_file.tables().countOut(TableKind::Layer);
}

quint64 LayerRecords::madeHandle(LayerId layer)
{
    LayerEntry entry = m_layers.entry(layer);
    if (entry.hasRecord && entry.handle != 0)
        return entry.handle;
    if (entry.hasRecord) {
        entry.handle = m_file.takeHandle();
        TagList record = tags(entry);
        record.insert(1, record.style().handle(group::kHandle, entry.handle));
        store(entry, record.bytes());
    } else {
        add(entry);
    }
    m_layers.change(layer, entry);
    return entry.handle;
}

quint64 LayerRecords::madeExtension(LayerId layer)
{
    madeHandle(layer);
    LayerEntry entry = m_layers.entry(layer);
    Objects& objects = m_file.objects();
    if (entry.extension != 0 && objects.kind(entry.extension) == ObjectKind::Dictionary)
        return entry.extension;
    entry.extension = objects.addDictionary(entry.handle);
    store(entry, withExtension(tags(entry), entry.extension));
    m_layers.change(layer, entry);
    return entry.extension;
}

} // namespace drawing
