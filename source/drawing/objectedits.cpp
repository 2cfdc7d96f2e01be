#include "objectedits.h"

namespace drawing {

namespace {

constexpr char kReactors[] = "{ACAD_REACTORS";
// Orders of insertions where objects go: a section that has to be made, the objects, its end.
constexpr quint32 kSectionHead = 0x72000000;
constexpr quint32 kSectionTail = 0x7f000000;

QByteArray reactors(const TagStyle& style, quint64 owner)
{
    return style.tag(102, kReactors) + style.handle(330, owner) + style.tag(102, "}");
}

} // namespace

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

TagStyle ObjectEdits::style() const
{
    return TagStyle::of(m_data.view(m_data.index.table(TableKind::Layer).head));
}

EditPlace ObjectEdits::insert(const QByteArray& bytes)
{
    const DrawingIndex& index = m_data.index;
    const bool hasSection = index.objectsEnd >= 0;
    const qint64 at = hasSection ? index.objectsEnd : index.eof;
    const TagStyle style = this->style();
    if (!hasSection && m_data.state.objectsMade == 0) {
        const quint64 root = SymbolTables(m_data).takeHandle();
        m_data.journal.insert(at, kSectionHead,
            style.tag(0, "SECTION") + style.tag(2, "OBJECTS") + newDictionary(style, root, 0, {}));
        m_data.journal.insert(at, kSectionTail, style.tag(0, "ENDSEC"));
    }
    const EditPlace place{at, kSectionHead + ++m_data.state.objectsMade};
    m_data.journal.insert(place.begin, place.order, bytes);
    return place;
}

void ObjectEdits::addEntry(const ObjectPlace& dictionary, const QByteArray& key, quint64 handle)
{
    const TagStyle style = this->style();
    TagList tags(m_data.journal.current(dictionary.begin, dictionary.end));
    const int xdata = tags.find(1001, 0, tags.size());
    const int at = xdata == TagList::kNone ? tags.size() : xdata;
    tags.insert(at, 360, style.handle(360, handle));
    tags.insert(at, 3, style.tag(3, key));
    m_data.journal.replace(dictionary.begin, dictionary.end, tags.bytes());
}

} // namespace drawing
