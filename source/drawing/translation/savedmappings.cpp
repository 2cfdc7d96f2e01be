#include "savedmappings.h"

#include "file/drawingtexts.h"
#include "file/groupcode.h"
#include "file/owntags.h"

namespace drawing {

namespace {

constexpr char kDictionaryKey[] = "LAYER_TRANSLATION";
/// A key that cannot be the name of a layer.
constexpr char kIdleZeroKey[] = "*0";

// Groups in the record of a mapping.
constexpr int kFrom = 1;
constexpr int kTo = 2;
/// A hard pointer keeps the layer from being purged as long as it is a target.
constexpr int kToHandle = group::kHardPointer;

} // namespace

std::vector<Dictionary::Entry> SavedMappings::entries() const
{
    const Objects& objects = m_file.objects();
    const ObjectPlace* root = objects.root();
    return root ? objects.dictionary(objects.entry(root->handle, kDictionaryKey)).entries()
                : std::vector<Dictionary::Entry>();
}

SavedMappingList SavedMappings::read() const
{
    SavedMappingList list;
    for (const Dictionary::Entry& entry : entries()) {
        if (entry.key == kIdleZeroKey)
            list.isZeroIdle = true;
        if (entry.key == kIdleZeroKey || m_file.objects().kind(entry.object) != ObjectKind::XRecord)
            continue;
        SavedMapping mapping;
        const TagList tags = m_file.objects().tags(entry.object);
        const Layer* known = nullptr;
        for (int at = 0; at < tags.size(); ++at) {
            if (tags.code(at) == kFrom)
                mapping.from = m_file.decoded(tags.trimmed(at));
            else if (tags.code(at) == kTo)
                mapping.to = m_file.decoded(tags.trimmed(at));
            else if (tags.code(at) == kToHandle)
                known = m_layers.byHandle(tags.handle(at));
        }
        if (known)
            mapping.to = known->properties.name;
        list.mappings.push_back(mapping);
    }
    return list;
}

Expected<void> SavedMappings::write(const SavedMappingList& list)
{
    Objects& objects = m_file.objects();
    const ObjectPlace* root = objects.root();
    if (!m_file.limits().markers || !root)
        return refusal(Texts::tr("此文件的格式（DXF R12 或没有对象字典）不能保存图层映射。"));
    const TagStyle style = objects.style();
    for (const Dictionary::Entry& entry : entries())
        objects.erase(entry.object);
    quint64 handle = objects.entry(root->handle, kDictionaryKey);
    if (handle == 0) {
        handle = m_file.takeHandle();
        objects.addEntry(root->handle, kDictionaryKey, handle);
    }
    Dictionary dictionary(m_file.tagList(newDictionary(style, handle, root->handle)));
    if (list.isZeroIdle)
        dictionary.add(kIdleZeroKey, objects.addRecord(handle, {}));
    for (const SavedMapping& mapping : list.mappings) {
        const QByteArray from = m_file.encoded(mapping.from);
        QByteArray data = style.tag(kFrom, from) + style.tag(kTo, m_file.encoded(mapping.to));
        if (const Layer* target = m_layers.find(mapping.to))
            data += style.handle(kToHandle, m_layers.entry(target->id).handle);
        dictionary.add(from, objects.addRecord(handle, data));
    }
    objects.store(handle, dictionary.tags());
    return {};
}

void SavedMappings::follow(const LayerReplacements& replacements)
{
    for (const Dictionary::Entry& entry : entries()) {
        TagList tags = m_file.objects().tags(entry.object);
        const int to = tags.find(kTo, 0, tags.size());
        if (to == TagList::kNone)
            continue;
        const QString name = replacements.currentName(m_file.decoded(tags.trimmed(to)));
        if (!name.isNull())
            tags.setText(to, m_file.encoded(name));
        const int pointer = tags.find(kToHandle, to, tags.size());
        if (pointer != TagList::kNone && replacements.isRemovedHandle(tags.handle(pointer)))
            tags.setHandle(pointer, replacements.mergeTargetHandle(tags.handle(pointer)));
        m_file.objects().store(entry.object, tags);
    }
}

QSet<quint64> SavedMappings::records() const
{
    QSet<quint64> records;
    for (const Dictionary::Entry& entry : entries())
        records.insert(entry.object);
    return records;
}

} // namespace drawing
