#include "savedmappings.h"

#include "drawingtexts.h"
#include "handles.h"
#include "objectedits.h"
#include "symboltables.h"

namespace drawing {

namespace {

constexpr char kDictionaryKey[] = "LAYER_TRANSLATION";
/// No layer can be called so.
constexpr char kIdleZeroKey[] = "*0";

// Groups of a mapping's record.
constexpr int kFrom = 1;
constexpr int kTo = 2;
constexpr int kToHandle = 340; // A hard pointer: the layer is not purged as long as it is a target.

QHash<quint64, QString> layerNames(const LayerTable& layers)
{
    QHash<quint64, QString> names;
    for (const Layer& layer : layers.listed())
        names.insert(layers.entry(layer.id).handle, layer.properties.name);
    return names;
}

} // namespace

const ObjectPlace* SavedMappings::root() const
{
    const std::vector<ObjectPlace>& objects = m_data.index.objects;
    const bool hasRoot = !objects.empty() && objects.front().kind == ObjectKind::Dictionary;
    return hasRoot ? &objects.front() : nullptr;
}

const ObjectPlace* SavedMappings::dictionary() const
{
    return dictionaryEntry(m_data, root(), kDictionaryKey);
}

SavedMappingList SavedMappings::read() const
{
    const QHash<quint64, QString> names = layerNames(m_data.layers);
    SavedMappingList list;
    for (const DictionaryEntry& entry : dictionaryEntries(m_data, dictionary())) {
        if (entry.key == kIdleZeroKey)
            list.isZeroIdle = true;
        if (entry.key == kIdleZeroKey || !entry.object || entry.object->kind != ObjectKind::XRecord)
            continue;
        SavedMapping mapping;
        QString known;
        TagReader tags = m_data.tags(entry.object->range);
        Tag tag;
        while (tags.next(tag)) {
            if (tag.code == kFrom)
                mapping.from = m_data.codec.decode(tag.trimmed());
            else if (tag.code == kTo)
                mapping.to = m_data.codec.decode(tag.trimmed());
            else if (tag.code == kToHandle)
                known = names.value(tag.handle());
        }
        if (!known.isEmpty())
            mapping.to = known;
        list.mappings.push_back(mapping);
    }
    return list;
}

void SavedMappings::writeRecord(quint64 handle, quint64 owner, const QByteArray& data)
{
    ObjectEdits objects(m_data);
    objects.store(handle, newRecordHead(objects.style(), handle, owner) + data);
}

Expected<void> SavedMappings::write(const SavedMappingList& list)
{
    const ObjectPlace* root = this->root();
    if (!m_data.limits.markers || !root)
        return tl::make_unexpected(
            Error{Texts::tr("此文件的格式（DXF R12 或没有对象字典）不能保存图层映射。"), 0, false});
    ObjectEdits objects(m_data);
    SymbolTables tables(m_data);
    const TagStyle style = objects.style();
    const ObjectPlace* old = dictionary();
    for (const ObjectPlace* record : dictionaryObjects(m_data, old))
        m_data.journal.replace(record->range, {});
    const quint64 handle = old ? old->handle : tables.takeHandle();
    QByteArray entries;
    if (list.isZeroIdle) {
        const quint64 record = tables.takeHandle();
        entries += style.tag(3, kIdleZeroKey) + style.handle(360, record);
        writeRecord(record, handle, {});
    }
    for (const SavedMapping& mapping : list.mappings) {
        const quint64 record = tables.takeHandle();
        const QByteArray from = m_data.codec.encode(mapping.from);
        entries += style.tag(3, from) + style.handle(360, record);
        const Layer* target = m_data.layers.find(mapping.to);
        QByteArray data = style.tag(kFrom, from) + style.tag(kTo, m_data.codec.encode(mapping.to));
        if (target)
            data += style.handle(kToHandle, m_data.layers.entry(target->id).handle);
        writeRecord(record, handle, data);
    }
    const QByteArray bytes = newDictionary(style, handle, root->handle, entries);
    objects.store(handle, bytes);
    if (!old)
        objects.addEntry(root->handle, kDictionaryKey, handle);
    return {};
}

} // namespace drawing
