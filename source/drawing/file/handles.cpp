#include "handles.h"

#include <algorithm>

namespace drawing {

namespace {

template <class Visit>
void visitEntries(DrawingData& data, const ObjectPlace* dictionary, Visit visit)
{
    if (!dictionary)
        return;
    TagReader tags = data.tags(dictionary->range);
    std::string_view key;
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 3)
            key = tag.trimmed();
        else if ((tag.code == 350 || tag.code == 360) && !key.empty())
            visit(key, data.objectByHandle(tag.handle()));
    }
}

} // namespace

const ObjectPlace* dictionaryEntry(
    DrawingData& data, const ObjectPlace* dictionary, std::string_view wanted)
{
    const ObjectPlace* found = nullptr;
    visitEntries(data, dictionary, [&](std::string_view key, const ObjectPlace* object) {
        if (key == wanted && !found)
            found = object;
    });
    return found;
}

std::vector<DictionaryEntry> dictionaryEntries(DrawingData& data, const ObjectPlace* dictionary)
{
    std::vector<DictionaryEntry> entries;
    visitEntries(data, dictionary, [&](std::string_view key, const ObjectPlace* object) {
        entries.push_back({key, object});
    });
    return entries;
}

std::vector<const ObjectPlace*> dictionaryObjects(DrawingData& data, const ObjectPlace* dictionary)
{
    std::vector<const ObjectPlace*> objects;
    visitEntries(data, dictionary, [&](std::string_view, const ObjectPlace* object) {
        if (object)
            objects.push_back(object);
    });
    return objects;
}

quint64 extensionDictionary(TagReader tags)
{
    bool inGroup = false;
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 102)
            inGroup = tag.trimmed() == "{ACAD_XDICTIONARY";
        else if (inGroup && tag.code == 360)
            return tag.handle();
    }
    return 0;
}

quint64 ownHandle(TagReader tags)
{
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 5)
            return tag.handle();
    }
    return 0;
}

QHash<quint64, QString> linetypeNames(const DrawingData& data)
{
    QHash<quint64, QString> names;
    for (const ByteRange& record : data.index.table(TableKind::Linetype).records) {
        TagReader tags = data.tags(record);
        quint64 handle = 0;
        QString name;
        Tag tag;
        while (tags.next(tag) && name.isNull()) {
            if (tag.code == 5)
                handle = tag.handle();
            else if (tag.code == 2)
                name = data.codec.decode(tag.trimmed());
        }
        if (handle != 0)
            names.insert(handle, name);
    }
    return names;
}

quint64 firstFreeHandle(const DrawingData& data)
{
    constexpr quint64 kHighest = quint64(1) << 62;
    const Tag& seed = data.index.variable(HeaderVariable::HandleSeed);
    quint64 free = std::max<quint64>(seed.handle(), 1);
    // Some programs write a seed that is already in use.
    TagReader tags = data.allTags();
    Tag tag;
    while (tags.next(tag)) {
        if ((tag.code != 5 && tag.code != 105) || tag.value == seed.value)
            continue;
        const quint64 handle = tag.handle();
        if (handle >= free && handle < kHighest)
            free = handle + 1;
    }
    return free;
}

} // namespace drawing
