#include "layeroverrides.h"

#include "handles.h"
#include "objectedits.h"
#include "symboltables.h"
#include "taglist.h"

namespace drawing {

namespace {

constexpr int kViewportCode = 335;
// The kind of a colour stands above its value.
constexpr quint32 kByTrueColor = 0xc2000000;
constexpr quint32 kByIndex = 0xc3000000;

/// The record's data without the group of this viewport.
QByteArray dataWithout(TagList tags, quint64 viewport)
{
    const int marker = tags.find(100, 0, tags.size());
    int begin = marker == TagList::kNone ? tags.size() : marker + 1;
    if (begin < tags.size() && tags.code(begin) == 280)
        ++begin;
    const int xdata = tags.find(1001, begin, tags.size());
    std::vector<int> kept;
    for (int at = begin, end = begin; at < (xdata == TagList::kNone ? tags.size() : xdata);
         at = end) {
        end = tags.code(at) == 102 ? tags.find(102, at + 1, tags.size()) : at;
        end = end == TagList::kNone ? tags.size() : end + 1;
        const int owner = tags.find(kViewportCode, at, end);
        const bool isGone = owner != TagList::kNone && tags.handle(owner) == viewport;
        for (int i = at; i < end && !isGone; ++i)
            kept.push_back(i);
    }
    tags.keepOnly(kept);
    return tags.bytes();
}

} // namespace

struct LayerOverrides::Row
{
    int property;
    const char* key;
    const char* group;
    int code;
};

const LayerOverrides::Row LayerOverrides::kRows[] = {
    {kStateColor, "ADSK_XREC_LAYER_COLOR_OVR", "{ADSK_LYR_COLOR_OVERRIDE", 420},
    {kStateLinetype, "ADSK_XREC_LAYER_LINETYPE_OVR", "{ADSK_LYR_LINETYPE_OVERRIDE", 343},
    {kStateLineweight, "ADSK_XREC_LAYER_LINEWT_OVR", "{ADSK_LYR_LINEWT_OVERRIDE", 91},
    {kStateTransparency, "ADSK_XREC_LAYER_ALPHA_OVR", "{ADSK_LYR_ALPHA_OVERRIDE", 440},
};

quint64 layerExtension(DrawingData& data, const LayerEntry& entry)
{
    if (entry.extension != 0 || !entry.hasRecord || entry.place.order != EditPlace::kReplacement)
        return entry.extension;
    const quint64 handle = extensionDictionary(data.tags(entry.range()));
    return data.objectByHandle(handle) ? handle : 0;
}

quint64 LayerOverrides::madeExtension(LayerId layer)
{
    LayerEntry entry = m_data.layers.entry(layer);
    if (const quint64 known = layerExtension(m_data, entry))
        return known;
    SymbolTables tables(m_data);
    if (!entry.hasRecord)
        tables.addLayerRecord(entry);
    entry.extension = ObjectEdits(m_data).addDictionary(entry.handle);
    tables.setLayerRecord(
        entry, withExtension(m_data.tagList(tables.layerRecord(entry)), entry.extension));
    m_data.layers.change(layer, entry);
    return entry.extension;
}

quint64 LayerOverrides::linetypeHandle(const QString& name)
{
    if (!m_linetypes) {
        m_linetypes.emplace();
        const QHash<quint64, QString> names = linetypeNames(m_data);
        for (auto at = names.begin(); at != names.end(); ++at)
            m_linetypes->insert(at.value().toCaseFolded(), at.key());
    }
    return m_linetypes->value(name.toCaseFolded());
}

/// Null for a linetype that the drawing lacks.
QByteArray LayerOverrides::value(int property, const LayerProperties& shown)
{
    switch (property) {
    case kStateColor: {
        const quint32 color = shown.trueColor ? kByTrueColor | *shown.trueColor
                                              : kByIndex | static_cast<quint32>(shown.colorIndex);
        return QByteArray::number(static_cast<qint32>(color));
    }
    case kStateLinetype: {
        const quint64 handle = linetypeHandle(shown.linetype);
        return handle == 0 ? QByteArray() : handleText(handle);
    }
    case kStateLineweight:
        return QByteArray::number(shown.lineweight);
    default:
        return QByteArray::number(storedTransparency(shown.transparency));
    }
}

bool LayerOverrides::set(
    LayerId layer, quint64 viewport, const LayerProperties& shown, int properties)
{
    const LayerProperties own = m_data.layers.entry(layer).layer.properties;
    bool isWhole = true;
    for (const Row& row : kRows) {
        if (!(properties & row.property))
            continue;
        const bool isOwn = maskedProperties(own, shown, row.property) == own;
        const QByteArray value = isOwn ? QByteArray() : this->value(row.property, shown);
        if (isOwn || !value.isNull())
            write(layer, row, viewport, value);
        else
            isWhole = false;
    }
    return isWhole;
}

/// A null value takes the override away.
void LayerOverrides::write(LayerId layer, const Row& row, quint64 viewport, const QByteArray& value)
{
    ObjectEdits objects(m_data);
    const quint64 known = layerExtension(m_data, m_data.layers.entry(layer));
    if (known == 0 && value.isNull())
        return;
    const quint64 dictionary = value.isNull() ? known : madeExtension(layer);
    const quint64 record = objects.entry(dictionary, row.key);
    const QByteArray before = objects.bytes(record);
    const TagStyle style = objects.style();
    QByteArray data =
        before.isEmpty() ? QByteArray() : dataWithout(m_data.tagList(before), viewport);
    if (!value.isNull())
        data += style.tag(102, row.group) + style.handle(kViewportCode, viewport) +
                style.tag(row.code, value) + style.tag(102, "}");
    if (before.isEmpty() && !data.isEmpty()) {
        objects.removeEntry(dictionary, row.key); // Of a record that the file lacks.
        objects.addEntry(dictionary, row.key, objects.addRecord(dictionary, data));
    } else if (data.isEmpty() && record != 0) {
        objects.removeEntry(dictionary, row.key);
        objects.erase(record);
    } else if (!before.isEmpty()) {
        objects.store(record, withRecordData(m_data.tagList(before), data));
    }
}

} // namespace drawing
