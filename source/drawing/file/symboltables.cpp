#include "symboltables.h"

#include "drawingfile.h"
#include "groupcode.h"
#include "insertionorder.h"
#include "owntags.h"
#include "symbolname.h"

#include <algorithm>
#include <limits>

namespace drawing {

namespace {

struct TableNames
{
    TableKind kind;
    const char* table;
    const char* record; ///< The subclass marker of its records.
};

constexpr TableNames kTables[] = {
    {TableKind::Linetype, "LTYPE", "AcDbLinetypeTableRecord"},
    {TableKind::Layer, "LAYER", "AcDbLayerTableRecord"},
    {TableKind::Style, "STYLE", "AcDbTextStyleTableRecord"},
    {TableKind::AppId, "APPID", "AcDbRegAppTableRecord"},
};

const TableNames& namesOf(TableKind kind)
{
    return *std::find_if(std::begin(kTables), std::end(kTables),
        [kind](const TableNames& names) { return names.kind == kind; });
}

/// The insertion order of a table's head, which its records follow.
quint32 headOrder(TableKind kind)
{
    return kNewTables + static_cast<quint32>(kind) * kTableSpan;
}

} // namespace

void SymbolTables::load()
{
    for (const ByteRange& record : m_file.table(TableKind::AppId).records)
        m_appIds.insert(foldedName(nameOf(record)));
}

TagStyle SymbolTables::sectionStyle() const
{
    constexpr qint64 kSample = 400;
    const qint64 from = m_file.index().firstSection;
    return m_file.styleOf(
        {from, std::min(from + kSample, static_cast<qint64>(m_file.bytes().size()))});
}

TagStyle SymbolTables::style(TableKind kind) const
{
    const TablePlace& table = m_file.table(kind);
    return table.isNull() ? sectionStyle() : m_file.styleOf(table.head);
}

quint64 SymbolTables::handle(TableKind kind) const
{
    const TablePlace& table = m_file.table(kind);
    if (const quint64 known = table.isNull() ? 0 : ownHandle(m_file.tags(table.head)))
        return known;
    const QByteArray made = table.isNull()
                                ? m_file.journal().inserted(place(kind), headOrder(kind))
                                : m_file.journal().inserted(behindName(kind), kNewHandle);
    return ownHandle(TagReader(made, m_file.spelling()));
}

quint64 SymbolTables::madeHandle(TableKind kind)
{
    if (m_file.table(kind).isNull())
        count(kind, 0);
    if (const quint64 known = handle(kind))
        return known;
    const quint64 taken = m_file.takeHandle();
    m_file.journal().insert(
        behindName(kind), kNewHandle, style(kind).handle(group::kHandle, taken));
    return taken;
}

/// The offset after the table's name in the head of a table of the file.
qint64 SymbolTables::behindName(TableKind kind) const
{
    return findOwn(m_file.tags(m_file.table(kind).head), group::kName).end();
}

QString SymbolTables::nameOf(const ByteRange& record) const
{
    return m_file.decoded(findOwn(m_file.tags(record), group::kName).trimmed());
}

/// The offset at which new records of a table are inserted.
qint64 SymbolTables::place(TableKind kind) const
{
    const FileIndex& index = m_file.index();
    if (!index.tables[kind].isNull())
        return index.tables[kind].endTab;
    return index.tablesEnd >= 0 ? index.tablesEnd : index.firstBody;
}

EditPlace SymbolTables::insert(TableKind kind, const QByteArray& record)
{
    const EditPlace place{this->place(kind), headOrder(kind) + ++m_file.state().recordsMade[kind]};
    m_file.journal().insert(place.begin, place.order, record);
    return place;
}

/// Updates the count of a table: the file's value plus the records added and less those removed.
void SymbolTables::count(TableKind kind, int added)
{
    const int all = m_file.state().recordsAdded[kind] += added;
    const TablePlace& table = m_file.table(kind);
    if (table.isNull()) {
        makeFrame(kind);
        return;
    }
    const Tag old = findOwn(m_file.tags(table.head), group::kFlags);
    const qint64 count = old.integer();
    // A missing or invalid count is left alone because nobody can rely on it.
    if (old.raw().empty() || count < 0 || count > std::numeric_limits<int>::max() - std::abs(all))
        return;
    m_file.journal().replace(
        old.valueRange(), numberInPlace(old, std::max<qint64>(0, count + all)));
}

/// Creates a missing table around its records and, if necessary, the TABLES section around it.
void SymbolTables::makeFrame(TableKind kind)
{
    const TagStyle style = sectionStyle();
    EditJournal& journal = m_file.journal();
    const qint64 at = place(kind);
    if (m_file.index().tablesEnd < 0) {
        journal.insert(at, kTablesHead,
            style.tag(group::kType, "SECTION") + style.tag(group::kName, "TABLES"));
        journal.insert(at, kTablesTail, style.tag(group::kType, "ENDSEC"));
    }
    const quint32 first = headOrder(kind);
    QByteArray head = journal.inserted(at, first);
    if (head.isEmpty()) {
        head = style.tag(group::kType, "TABLE") + style.tag(group::kName, namesOf(kind).table);
        if (m_file.limits().markers)
            head += style.handle(group::kHandle, m_file.takeHandle()) +
                    style.handle(group::kSoftPointer, 0) +
                    style.tag(group::kSubclass, "AcDbSymbolTable");
        head += style.number(group::kFlags, 0);
    }
    TagList tags = m_file.tagList(head);
    tags.setInteger(findOwn(tags, group::kFlags), m_file.state().recordsAdded[kind]);
    journal.insert(at, first, tags.bytes());
    journal.insert(at, first + kTableSpan - 1, style.tag(group::kType, "ENDTAB"));
}

SymbolTables::NewRecord SymbolTables::begin(TableKind kind)
{
    count(kind, 1);
    const TagStyle style = this->style(kind);
    const TableNames& names = namesOf(kind);
    NewRecord made{m_file.takeHandle(), style.tag(group::kType, names.table)};
    if (made.handle == 0)
        return made;
    made.head += style.handle(group::kHandle, made.handle);
    if (const quint64 owner = handle(kind))
        made.head += style.handle(group::kSoftPointer, owner);
    made.head += style.tag(group::kSubclass, "AcDbSymbolTableRecord") +
                 style.tag(group::kSubclass, names.record);
    return made;
}

quint64 SymbolTables::add(TableKind kind, const std::vector<TextTag>& tags)
{
    const TagStyle style = this->style(kind);
    NewRecord made = begin(kind);
    for (const TextTag& tag : tags) {
        const bool isFlag = tag.code >= 60 && tag.code <= 79;
        made.head += isFlag ? style.number(tag.code, tag.value.toLongLong())
                            : style.tag(tag.code, m_file.encoded(tag.value));
    }
    insert(kind, made.head);
    return made.handle;
}

/// Where the head of a table of the file names its extension dictionary, or where it should.
struct SymbolTables::ExtensionPlace
{
    Tag handle;         ///< Null when there is none.
    qint64 behind = -1; ///< The offset after which the handle belongs.
};

SymbolTables::ExtensionPlace SymbolTables::extensionPlace(TableKind kind) const
{
    ExtensionPlace place;
    OwnTags all(m_file.tags(m_file.table(kind).head));
    Tag tag;
    while (all.nextOfAll(tag)) {
        if (all.place().group() == kExtensionGroup && tag.code == group::kHardOwner) {
            place.handle = tag;
            return place;
        }
        if (tag.code == group::kHandle || (tag.code == group::kName && place.behind < 0))
            place.behind = tag.end();
    }
    return place;
}

quint64 SymbolTables::extension(TableKind kind) const
{
    const EditJournal& journal = m_file.journal();
    const auto within = [this](const QByteArray& tags) {
        return extensionOf(TagReader(tags, m_file.spelling()));
    };
    if (m_file.table(kind).isNull())
        return within(journal.inserted(place(kind), headOrder(kind)));
    const ExtensionPlace found = extensionPlace(kind);
    if (found.handle.isNull())
        return within(journal.inserted(found.behind, kNewExtension));
    return journal.current(found.handle.valueRange()).trimmed().toULongLong(nullptr, 16);
}

quint64 SymbolTables::madeExtension(TableKind kind)
{
    const quint64 known = extension(kind);
    if (m_file.objects().kind(known) == ObjectKind::Dictionary)
        return known;
    const quint64 made = m_file.objects().addDictionary(madeHandle(kind));
    linkExtension(kind, made);
    return made;
}

/// The head may contain other edits, so it must not be replaced as a whole.
void SymbolTables::linkExtension(TableKind kind, quint64 dictionary)
{
    const TagStyle style = this->style(kind);
    EditJournal& journal = m_file.journal();
    if (m_file.table(kind).isNull()) {
        const QByteArray head = journal.inserted(place(kind), headOrder(kind));
        journal.insert(
            place(kind), headOrder(kind), withExtension(m_file.tagList(head), dictionary));
        return;
    }
    const ExtensionPlace found = extensionPlace(kind);
    if (!found.handle.isNull())
        journal.replace(
            found.handle.valueRange(), style.value(found.handle.code, handleText(dictionary)));
    else
        journal.insert(found.behind, kNewExtension,
            style.tag(group::kBrace, kExtensionGroup) +
                style.handle(group::kHardOwner, dictionary) + style.tag(group::kBrace, "}"));
}

void SymbolTables::needAppId(const QString& name)
{
    const QString key = foldedName(name);
    QSet<QString>& added = m_file.state().newAppIds;
    if (m_appIds.contains(key) || added.contains(key))
        return;
    added.insert(key);
    add(TableKind::AppId, {{group::kName, name}, {group::kFlags, QStringLiteral("0")}});
}

} // namespace drawing
