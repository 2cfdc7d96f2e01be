#include "objectedits.h"

#include "symboltables.h"

namespace drawing {

namespace {

constexpr char kReactors[] = "{ACAD_REACTORS";
constexpr char kExtension[] = "{ACAD_XDICTIONARY";
// Orders of insertions where objects go: a section that has to be made, the objects, its end.
constexpr quint32 kSectionHead = 0x72000000;
constexpr quint32 kSectionTail = 0x7f000000;

QByteArray reactors(const TagStyle& style, quint64 owner)
{
    return style.tag(102, kReactors) + style.handle(330, owner) + style.tag(102, "}");
}

bool isReference(int code)
{
    return code == 350 || code == 360;
}

/// The tag of the key of a dictionary's entry.
int findEntry(const TagList& tags, std::string_view key)
{
    for (int at = 0; at + 1 < tags.size(); ++at) {
        if (tags.code(at) == 3 && tags.trimmed(at) == key && isReference(tags.code(at + 1)))
            return at;
    }
    return TagList::kNone;
}

} // namespace

TagStyle ObjectEdits::style() const
{
    return m_data.styleOf(m_data.index.table(TableKind::Layer).head);
}

bool ObjectEdits::isNew(quint64 handle) const
{
    return m_data.freeHandle != 0 && handle >= m_data.freeHandle;
}

EditPlace ObjectEdits::placeOfNew(quint64 handle) const
{
    const DrawingIndex& index = m_data.index;
    const auto number = static_cast<quint32>(handle - m_data.freeHandle);
    return {index.objectsEnd >= 0 ? index.objectsEnd : index.eof, kSectionHead + 1 + number};
}

QByteArray ObjectEdits::bytes(quint64 handle) const
{
    if (const ObjectPlace* object = m_data.objectByHandle(handle))
        return m_data.journal.current(object->range);
    const EditPlace place = placeOfNew(handle);
    return isNew(handle) ? m_data.journal.inserted(place.begin, place.order) : QByteArray();
}

void ObjectEdits::makeSection(qint64 at)
{
    if (m_data.index.objectsEnd >= 0 || !m_data.journal.inserted(at, kSectionHead).isNull())
        return;
    const TagStyle style = this->style();
    const quint64 root = SymbolTables(m_data).takeHandle();
    m_data.journal.insert(at, kSectionHead,
        style.tag(0, "SECTION") + style.tag(2, "OBJECTS") + newDictionary(style, root, 0, {}));
    m_data.journal.insert(at, kSectionTail, style.tag(0, "ENDSEC"));
}

void ObjectEdits::store(quint64 handle, const QByteArray& bytes)
{
    if (const ObjectPlace* object = m_data.objectByHandle(handle)) {
        m_data.journal.replace(object->range, bytes);
        return;
    }
    const EditPlace place = placeOfNew(handle);
    makeSection(place.begin);
    m_data.journal.insert(place.begin, place.order, bytes);
}

void ObjectEdits::erase(quint64 handle)
{
    const EditPlace place = placeOfNew(handle);
    if (const ObjectPlace* object = m_data.objectByHandle(handle))
        m_data.journal.replace(object->range, {});
    else if (isNew(handle))
        m_data.journal.removeInsertion(place.begin, place.order);
}

quint64 ObjectEdits::addDictionary(quint64 owner)
{
    const quint64 handle = SymbolTables(m_data).takeHandle();
    store(handle, newDictionary(style(), handle, owner, {}));
    return handle;
}

quint64 ObjectEdits::addRecord(quint64 owner, const QByteArray& data)
{
    const quint64 handle = SymbolTables(m_data).takeHandle();
    store(handle, newRecordHead(style(), handle, owner) + data);
    return handle;
}

quint64 ObjectEdits::entry(quint64 dictionary, std::string_view key) const
{
    const TagList tags = m_data.tagList(bytes(dictionary));
    const int at = findEntry(tags, key);
    return at == TagList::kNone ? 0 : tags.handle(at + 1);
}

void ObjectEdits::addEntry(quint64 dictionary, const QByteArray& key, quint64 object)
{
    const TagStyle style = this->style();
    TagList tags = m_data.tagList(bytes(dictionary));
    const int xdata = tags.find(1001, 0, tags.size());
    const int at = xdata == TagList::kNone ? tags.size() : xdata;
    tags.insert(at, style.handle(360, object));
    tags.insert(at, style.tag(3, key));
    store(dictionary, tags.bytes());
}

void ObjectEdits::removeEntry(quint64 dictionary, std::string_view key)
{
    TagList tags = m_data.tagList(bytes(dictionary));
    const int at = findEntry(tags, key);
    if (at == TagList::kNone)
        return;
    tags.remove(at, at + 2);
    store(dictionary, tags.bytes());
}

QByteArray newDictionary(
    const TagStyle& style, quint64 handle, quint64 owner, const QByteArray& entries)
{
    return style.tag(0, "DICTIONARY") + style.handle(5, handle) +
           (owner != 0 ? reactors(style, owner) : QByteArray()) + style.handle(330, owner) +
           style.tag(100, "AcDbDictionary") + style.number(280, 1) + style.number(281, 1) + entries;
}

QByteArray newRecordHead(const TagStyle& style, quint64 handle, quint64 owner)
{
    QByteArray head = style.tag(0, "XRECORD");
    if (handle != 0)
        head += style.handle(5, handle) + reactors(style, owner) + style.handle(330, owner);
    return head + style.tag(100, "AcDbXrecord") + style.number(280, 1);
}

QByteArray withRecordData(const TagList& record, const QByteArray& data)
{
    TagList head = record;
    TagList tail = record;
    const int marker = head.find(100, 0, head.size());
    int begin = marker == TagList::kNone ? head.size() : marker + 1;
    if (begin < head.size() && head.code(begin) == 280)
        ++begin;
    int end = tail.find(1001, begin, tail.size());
    end = end == TagList::kNone ? tail.size() : end;
    head.remove(begin, head.size());
    tail.remove(0, end);
    return head.bytes() + data + tail.bytes();
}

QByteArray withExtension(TagList tags, quint64 dictionary)
{
    const TagStyle style = tags.style();
    for (int at = 0; at + 1 < tags.size(); ++at) {
        if (tags.code(at) == 102 && tags.trimmed(at) == kExtension && tags.code(at + 1) == 360) {
            tags.setHandle(at + 1, dictionary);
            return tags.bytes();
        }
    }
    const int own = tags.find(5, 0, tags.size());
    const int at = own == TagList::kNone ? 1 : own + 1;
    tags.insert(at, style.tag(102, "}"));
    tags.insert(at, style.handle(360, dictionary));
    tags.insert(at, style.tag(102, kExtension));
    return tags.bytes();
}

} // namespace drawing
