#include "layeroverrides.h"

#include "colorindex.h"
#include "file/groupcode.h"

namespace drawing {

namespace {

constexpr int kViewportCode = 335;

/// The index after the viewport's group that begins at `at`, or after the single tag there.
int endOfGroup(const TagList& tags, int at, int end)
{
    const int brace = tags.code(at) == group::kBrace ? tags.find(group::kBrace, at + 1, end) : at;
    return brace == TagList::kNone ? end : brace + 1;
}

/// The viewport that the group belongs to; 0 when it names none.
quint64 viewportOf(const TagList& tags, int at, int end)
{
    const int owner = tags.find(kViewportCode, at, end);
    return owner == TagList::kNone ? 0 : tags.handle(owner);
}

/// The data of the record without the group of this viewport.
QByteArray dataWithout(TagList tags, quint64 viewport)
{
    const RecordData data(tags);
    std::vector<int> kept;
    for (int at = data.begin, end = at; at < data.end; at = end) {
        end = endOfGroup(tags, at, data.end);
        const bool isGone = viewportOf(tags, at, end) == viewport;
        for (int i = at; i < end && !isGone; ++i)
            kept.push_back(i);
    }
    tags.keepOnly(kept);
    return tags.bytes();
}

PackedColor packedColor(const LayerProperties& shown)
{
    if (shown.trueColor)
        return {PackedColor::TrueColor, *shown.trueColor};
    return {PackedColor::Index, static_cast<quint32>(shown.colorIndex)};
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
    {kStateColor, "ADSK_XREC_LAYER_COLOR_OVR", "{ADSK_LYR_COLOR_OVERRIDE", group::kTrueColor},
    {kStateLinetype, "ADSK_XREC_LAYER_LINETYPE_OVR", "{ADSK_LYR_LINETYPE_OVERRIDE", 343},
    {kStateLineweight, "ADSK_XREC_LAYER_LINEWT_OVR", "{ADSK_LYR_LINEWT_OVERRIDE", 91},
    {kStateTransparency, "ADSK_XREC_LAYER_ALPHA_OVR", "{ADSK_LYR_ALPHA_OVERRIDE",
        group::kTransparency},
};

/// The group for one viewport; null for a linetype that the drawing does not have.
QByteArray LayerOverrides::group(
    const Row& row, quint64 viewport, const LayerProperties& shown) const
{
    const TagStyle style = m_file.objects().style();
    QByteArray value;
    if (row.property == kStateLinetype) {
        const quint64 handle = m_linetypes.handle(shown.linetype);
        if (handle == 0)
            return {};
        value = handleText(handle);
    } else {
        value = QByteArray::number(row.property == kStateColor ? packedColor(shown).stored()
                                   : row.property == kStateLineweight
                                       ? shown.lineweight
                                       : storedTransparency(shown.transparency));
    }
    return style.tag(group::kBrace, row.group) + style.handle(kViewportCode, viewport) +
           style.tag(row.code, value) + style.tag(group::kBrace, "}");
}

bool LayerOverrides::set(
    LayerId layer, quint64 viewport, const LayerProperties& shown, int properties)
{
    const LayerProperties own = m_layers.entry(layer).layer.properties;
    bool isWhole = true;
    for (const Row& row : kRows) {
        if (!(properties & row.property))
            continue;
        const bool isOwn = maskedProperties(own, shown, row.property) == own;
        const QByteArray added = isOwn ? QByteArray() : group(row, viewport, shown);
        if (isOwn || !added.isNull())
            write(layer, row, viewport, added);
        else
            isWhole = false;
    }
    return isWhole;
}

std::map<quint64, std::vector<LayerInViewport>> LayerOverrides::all() const
{
    std::map<quint64, std::vector<LayerInViewport>> overridden;
    for (int i = 0; i < m_layers.entryCount(); ++i) {
        const auto id = static_cast<LayerId>(i);
        if (m_layers.entry(id).present && m_layers.entry(id).extension != 0)
            collect(id, overridden);
    }
    return overridden;
}

void LayerOverrides::collect(
    LayerId layer, std::map<quint64, std::vector<LayerInViewport>>& overridden) const
{
    const Dictionary dictionary = m_file.objects().dictionary(m_layers.entry(layer).extension);
    for (const Row& row : kRows) {
        const TagList tags = m_file.objects().tags(dictionary.find(row.key));
        const RecordData data(tags);
        for (int at = data.begin, end = at; at < data.end; at = end) {
            end = endOfGroup(tags, at, data.end);
            const quint64 viewport = viewportOf(tags, at, end);
            const int value = tags.find(row.code, at, end);
            if (viewport == 0 || value == TagList::kNone)
                continue;
            std::vector<LayerInViewport>& layers = overridden[viewport];
            if (layers.empty() || layers.back().layer != layer)
                layers.push_back({layer, m_layers.entry(layer).layer.properties});
            apply(row, tags.tag(value), layers.back().shown);
        }
    }
}

void LayerOverrides::apply(const Row& row, const Tag& value, LayerProperties& shown) const
{
    const PackedColor color(value.integer());
    if (row.property == kStateLineweight) {
        shown.lineweight = static_cast<int>(value.integer());
    } else if (row.property == kStateTransparency) {
        shown.transparency = transparencyPercent(value.integer());
    } else if (row.property == kStateLinetype) {
        if (const QString name = m_linetypes.name(value.handle()); !name.isNull())
            shown.linetype = name;
    } else if (color.method == PackedColor::TrueColor) {
        shown.trueColor = color.value;
    } else if (color.method == PackedColor::Index && isColorIndex(color.value)) {
        shown.trueColor.reset();
        shown.colorIndex = static_cast<int>(color.value);
    }
}

/// Writes the group of an override. A null group removes the override.
void LayerOverrides::write(LayerId layer, const Row& row, quint64 viewport, const QByteArray& group)
{
    Objects& objects = m_file.objects();
    const quint64 known = m_layers.entry(layer).extension;
    if (known == 0 && group.isNull())
        return;
    const quint64 dictionary = group.isNull() ? known : m_records.madeExtension(layer);
    const quint64 record = objects.entry(dictionary, row.key);
    const TagList before = objects.tags(record);
    const bool isThere = before.size() > 0;
    const QByteArray data = (isThere ? dataWithout(before, viewport) : QByteArray()) + group;
    if (!isThere && !data.isEmpty()) {
        // The entry may refer to a record that does not exist.
        objects.removeEntry(dictionary, row.key);
        objects.addEntry(dictionary, row.key, objects.addRecord(dictionary, data));
    } else if (data.isEmpty() && record != 0) {
        objects.removeEntry(dictionary, row.key);
        objects.erase(record);
    } else if (isThere) {
        objects.store(record, withRecordData(before, data));
    }
}

} // namespace drawing
