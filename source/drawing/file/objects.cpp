#include "objects.h"

#include "drawingfile.h"
#include "groupcode.h"
#include "insertionorder.h"
#include "owntags.h"

#include <unordered_set>

namespace drawing {

namespace {

constexpr char kReactors[] = "{ACAD_REACTORS";

QByteArray reactors(const TagStyle& style, quint64 owner)
{
    return style.tag(group::kBrace, kReactors) + style.handle(group::kSoftPointer, owner) +
           style.tag(group::kBrace, "}");
}

} // namespace

const ObjectPlace* Objects::find(quint64 handle) const
{
    const std::vector<ObjectPlace>& objects = m_file.index().objects;
    const std::lock_guard<std::mutex> guard(m_numbering);
    if (!m_numbers) {
        m_numbers.emplace();
        m_numbers->reserve(objects.size());
        for (size_t i = 0; i < objects.size(); ++i)
            m_numbers->try_emplace(objects[i].handle, i);
    }
    const auto at = m_numbers->find(handle);
    return handle == 0 || at == m_numbers->end() ? nullptr : &objects[at->second];
}

const ObjectPlace* Objects::root() const
{
    const std::vector<ObjectPlace>& objects = m_file.index().objects;
    const bool hasRoot = !objects.empty() && objects.front().kind == ObjectKind::Dictionary;
    return hasRoot ? &objects.front() : nullptr;
}

ObjectKind Objects::kind(quint64 handle) const
{
    if (const ObjectPlace* object = find(handle))
        return object->kind;
    const TagList added = tags(handle);
    return added.size() == 0 ? ObjectKind::Other : objectKind(added.trimmed(0));
}

QByteArray Objects::bytes(quint64 handle) const
{
    if (const ObjectPlace* object = find(handle))
        return m_file.journal().current(object->range);
    const EditPlace place = placeOfNew(handle);
    return m_file.newHandleNumber(handle) < 0 ? QByteArray()
                                              : m_file.journal().inserted(place.begin, place.order);
}

TagList Objects::tags(quint64 handle) const
{
    return m_file.tagList(bytes(handle));
}

quint64 Objects::entry(quint64 dictionary, std::string_view key) const
{
    return this->dictionary(dictionary).find(key);
}

TagStyle Objects::style() const
{
    return m_file.tables().style(TableKind::Layer);
}

/// The place of a new object with this handle.
EditPlace Objects::placeOfNew(quint64 handle) const
{
    const FileIndex& index = m_file.index();
    const auto number = static_cast<quint32>(m_file.newHandleNumber(handle));
    return {index.objectsEnd >= 0 ? index.objectsEnd : index.eof, kNewObjects + number};
}

void Objects::makeSection(qint64 at)
{
    EditJournal& journal = m_file.journal();
    if (m_file.index().objectsEnd >= 0 || !journal.inserted(at, kObjectsHead).isNull())
        return;
    const TagStyle style = this->style();
    const quint64 root = m_file.takeHandle();
    journal.insert(at, kObjectsHead,
        style.tag(group::kType, "SECTION") + style.tag(group::kName, "OBJECTS") +
            newDictionary(style, root, 0));
    journal.insert(at, kObjectsTail, style.tag(group::kType, "ENDSEC"));
}

void Objects::store(quint64 handle, const QByteArray& bytes)
{
    if (const ObjectPlace* object = find(handle)) {
        m_file.journal().replace(object->range, bytes);
        return;
    }
    const EditPlace place = placeOfNew(handle);
    makeSection(place.begin);
    m_file.journal().insert(place.begin, place.order, bytes);
}

void Objects::erase(quint64 handle)
{
    const EditPlace place = placeOfNew(handle);
    if (const ObjectPlace* object = find(handle))
        m_file.journal().replace(object->range, {});
    else if (m_file.newHandleNumber(handle) >= 0)
        m_file.journal().removeInsertion(place.begin, place.order);
}

void Objects::eraseOwned(quint64 handle)
{
    std::unordered_set<quint64> seen;
    std::vector<quint64> open = {handle};
    while (!open.empty()) {
        const quint64 next = open.back();
        open.pop_back();
        const TagList tags = this->tags(next);
        if (tags.size() == 0 || !seen.insert(next).second)
            continue;
        const bool isDictionary = objectKind(tags.trimmed(0)) == ObjectKind::Dictionary;
        for (int at = 0; at < tags.size(); ++at) {
            const int code = tags.code(at);
            if (code == group::kHardOwner || (code == group::kSoftOwner && isDictionary))
                open.push_back(tags.handle(at));
        }
        erase(next);
    }
}

quint64 Objects::addDictionary(quint64 owner)
{
    const quint64 handle = m_file.takeHandle();
    store(handle, newDictionary(style(), handle, owner));
    return handle;
}

quint64 Objects::addRecord(quint64 owner, const QByteArray& data)
{
    const quint64 handle = m_file.takeHandle();
    store(handle, newRecordHead(style(), handle, owner) + data);
    return handle;
}

void Objects::addEntry(quint64 dictionary, const QByteArray& key, quint64 object)
{
    Dictionary changed = this->dictionary(dictionary);
    changed.add(key, object);
    store(dictionary, changed.tags());
}

void Objects::removeEntry(quint64 dictionary, std::string_view key)
{
    Dictionary changed = this->dictionary(dictionary);
    if (changed.find(key) == 0)
        return;
    changed.remove(key);
    store(dictionary, changed.tags());
}

QByteArray newDictionary(const TagStyle& style, quint64 handle, quint64 owner)
{
    return style.tag(group::kType, "DICTIONARY") + style.handle(group::kHandle, handle) +
           (owner != 0 ? reactors(style, owner) : QByteArray()) +
           style.handle(group::kSoftPointer, owner) +
           style.tag(group::kSubclass, "AcDbDictionary") + style.number(group::kCloning, 1) +
           style.number(281, 1);
}

QByteArray newRecordHead(const TagStyle& style, quint64 handle, quint64 owner)
{
    QByteArray head = style.tag(group::kType, "XRECORD");
    if (handle != 0)
        head += style.handle(group::kHandle, handle) + reactors(style, owner) +
                style.handle(group::kSoftPointer, owner);
    return head + style.tag(group::kSubclass, "AcDbXrecord") + style.number(group::kCloning, 1);
}

RecordData::RecordData(const TagList& record)
{
    const int marker = record.find(group::kSubclass, 0, record.size());
    begin = marker == TagList::kNone ? record.size() : marker + 1;
    if (begin < record.size() && record.code(begin) == group::kCloning)
        ++begin;
    end = begin;
    while (end < record.size() && record.code(end) < group::kXdata)
        ++end;
}

QByteArray withRecordData(const TagList& record, const QByteArray& data)
{
    const RecordData old(record);
    TagList head = record;
    TagList tail = record;
    head.remove(old.begin, head.size());
    tail.remove(0, old.end);
    return head.bytes() + data + tail.bytes();
}

QByteArray withExtension(TagList tags, quint64 dictionary)
{
    for (int at = 0; at + 1 < tags.size(); ++at) {
        if (tags.code(at) == group::kBrace && tags.trimmed(at) == kExtensionGroup &&
            tags.code(at + 1) == group::kHardOwner) {
            tags.setHandle(at + 1, dictionary);
            return tags.bytes();
        }
    }
    const TagStyle style = tags.style();
    const int own = findOwn(tags, group::kHandle);
    const int at = own == TagList::kNone ? 1 : own + 1;
    tags.insert(at, style.tag(group::kBrace, "}"));
    tags.insert(at, style.handle(group::kHardOwner, dictionary));
    tags.insert(at, style.tag(group::kBrace, kExtensionGroup));
    return tags.bytes();
}

} // namespace drawing
