#include "symboltables.h"

#include "handles.h"
#include "layerrecordedit.h"

#include <algorithm>
#include <limits>

namespace drawing {

namespace {

// Orders of insertions at one offset: section head, then each table with head, records and
// tail, then the section's tail.
constexpr quint32 kSectionHead = 1;
constexpr quint32 kTableSpan = 0x10000000;
constexpr quint32 kSectionTail = 0x70000000;

struct TableNames
{
    TableKind kind;
    const char* table;
    const char* record; ///< Its subclass marker.
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

TagStyle styleAt(const DrawingData& data, qint64 offset)
{
    constexpr qint64 kSample = 400;
    const auto end = static_cast<qint64>(data.bytes.size());
    return data.styleOf({offset, std::min(offset + kSample, end)});
}

} // namespace

/// Where new records of a table go, and how they are to look.
struct SymbolTables::Spot
{
    qint64 at = 0;
    quint32 first = 0; // Order of the table's head.
    bool hasTable = false;
    bool hasSection = false;
    TagStyle style;
};

SymbolTables::Spot SymbolTables::spot(TableKind kind) const
{
    const DrawingIndex& index = m_data.index;
    const TablePlace& table = index.table(kind);
    Spot spot;
    spot.first = (static_cast<quint32>(kind) + 1) * kTableSpan;
    spot.hasTable = !table.isNull();
    spot.hasSection = index.tablesEnd >= 0;
    if (spot.hasTable) {
        spot.at = table.endTab;
        spot.style = m_data.styleOf(table.head);
    } else {
        spot.at = spot.hasSection ? index.tablesEnd : index.firstBody;
        spot.style = styleAt(m_data, index.firstSection);
    }
    return spot;
}

quint64 SymbolTables::tableHandle(TableKind kind) const
{
    const TablePlace& table = m_data.index.table(kind);
    TagReader tags = m_data.tags(table.head);
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 5)
            return tag.handle();
    }
    return 0;
}

quint64 SymbolTables::takeHandle()
{
    if (!m_data.limits.markers)
        return 0;
    if (m_data.freeHandle == 0)
        m_data.freeHandle = firstFreeHandle(m_data);
    const quint64 handle = m_data.freeHandle + m_data.state.handlesTaken++;
    writeHeader("$HANDSEED", HeaderVariable::HandleSeed, 5, handleText(handle + 1));
    return handle;
}

void SymbolTables::writeHeader(
    std::string_view name, HeaderVariable which, int code, const QByteArray& text)
{
    const DrawingIndex& index = m_data.index;
    const Tag& old = index.variable(which);
    const auto order = kSectionHead + 1 + static_cast<quint32>(which);
    const TagStyle style = styleAt(m_data, index.firstSection);
    if (!old.isNull()) {
        m_data.journal.overwrite(old.valueRange(), order, style.value(old.code, text));
        return;
    }
    const QByteArray variable =
        style.tag(9, QByteArray(name.data(), static_cast<int>(name.size()))) +
        style.tag(code, text);
    if (index.headerEnd >= 0) {
        m_data.journal.insert(index.headerEnd, order, variable);
        return;
    }
    // Below the orders of a TABLES section that may have to be made at the same place.
    m_data.journal.insert(index.firstSection, 0,
        style.tag(0, "SECTION") + style.tag(2, "HEADER") + variable + style.tag(0, "ENDSEC"));
}

void SymbolTables::writeCurrentLayer()
{
    const Layer& layer = m_data.layers.entry(m_data.state.current).layer;
    writeHeader(
        "$CLAYER", HeaderVariable::CurrentLayer, 8, m_data.codec.encode(layer.properties.name));
}

void SymbolTables::writeTileMode()
{
    const Tag& old = m_data.index.variable(HeaderVariable::TileMode);
    writeHeader("$TILEMODE", HeaderVariable::TileMode, 70,
        numberInPlace(old, m_data.state.modelSpace ? 1 : 0));
}

/// Sets the count of a table to what the file says plus `added`.
void SymbolTables::countRecords(const Spot& spot, TableKind kind, int added)
{
    if (!spot.hasTable) {
        makeFrame(spot, kind, added);
        return;
    }
    TagReader tags = m_data.tags(m_data.index.table(kind).head);
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 70)
            break;
    }
    if (tag.code != 70 || tag.raw().empty())
        return;
    const qint64 count = tag.integer();
    if (count < 0 || count > std::numeric_limits<int>::max() - std::abs(added))
        return; // A count that lies; it tells nobody anything.
    m_data.journal.replace(
        tag.valueRange(), numberInPlace(tag, std::max<qint64>(0, count + added)));
}

/// Makes a missing table around its records, and a missing TABLES section around the table.
void SymbolTables::makeFrame(const Spot& spot, TableKind kind, int records)
{
    const TagStyle& style = spot.style;
    EditJournal& journal = m_data.journal;
    if (!spot.hasSection) {
        journal.insert(spot.at, kSectionHead, style.tag(0, "SECTION") + style.tag(2, "TABLES"));
        journal.insert(spot.at, kSectionTail, style.tag(0, "ENDSEC"));
    }
    QByteArray head = journal.inserted(spot.at, spot.first);
    if (head.isEmpty()) {
        head = style.tag(0, "TABLE") + style.tag(2, namesOf(kind).table);
        if (m_data.limits.markers)
            head += style.handle(5, takeHandle()) + style.handle(330, 0) +
                    style.tag(100, "AcDbSymbolTable");
        head += style.number(70, 0);
    }
    TagList tags = m_data.tagList(head);
    tags.setInteger(tags.find(70, 0, tags.size()), records);
    journal.insert(spot.at, spot.first, tags.bytes());
    journal.insert(spot.at, spot.first + kTableSpan - 1, style.tag(0, "ENDTAB"));
}

void SymbolTables::addLayerRecord(LayerEntry& entry)
{
    const Spot spot = this->spot(TableKind::Layer);
    countRecords(spot, TableKind::Layer, ++m_data.state.layerRecordsAdded);
    NewLayerRecord plan;
    plan.limits = m_data.limits;
    plan.style = spot.style;
    plan.handle = takeHandle();
    plan.owner = plan.handle != 0 ? tableHandle(TableKind::Layer) : 0;
    // What layer 0 has of these is what the drawing's other layers have.
    const LayerEntry& model = m_data.layers.entry(m_data.layers.find(QStringLiteral("0"))->id);
    if (model.hasRecord && model.place.order == EditPlace::kReplacement) {
        const LayerRecord zero = LayerRecordReader(m_data.codec).read(m_data.tags(model.range()));
        plan.plotStyle = zero.plotStyle;
        plan.material = zero.material;
    }
    entry.hasRecord = true;
    entry.handle = plan.handle;
    entry.plotStyle = plan.plotStyle;
    entry.place = {spot.at, spot.first + 1 + m_data.state.recordsMade++};
    entry.end = spot.at;
    m_data.journal.insert(
        spot.at, entry.place.order, newLayerRecord(plan, entry.layer.properties, m_data.codec));
}

void SymbolTables::removeLayerRecord(const LayerEntry& entry)
{
    if (!entry.hasRecord)
        return;
    if (entry.place.order == EditPlace::kReplacement)
        m_data.journal.replace(entry.range(), {});
    else
        m_data.journal.removeInsertion(entry.place.begin, entry.place.order);
    countRecords(spot(TableKind::Layer), TableKind::Layer, --m_data.state.layerRecordsAdded);
}

QByteArray SymbolTables::layerRecord(const LayerEntry& entry) const
{
    return entry.place.order == EditPlace::kReplacement
               ? m_data.journal.current(entry.range())
               : m_data.journal.inserted(entry.place.begin, entry.place.order);
}

void SymbolTables::setLayerRecord(const LayerEntry& entry, const QByteArray& record)
{
    if (entry.place.order == EditPlace::kReplacement)
        m_data.journal.replace(entry.range(), record);
    else
        m_data.journal.insert(entry.place.begin, entry.place.order, record);
}

void SymbolTables::needAppId(const QString& name)
{
    const QString key = name.toCaseFolded();
    if (m_data.appIds.contains(key) || m_data.state.newAppIds.contains(key))
        return;
    m_data.state.newAppIds.insert(key);
    addRecord(
        TableKind::AppId, m_data.state.newAppIds.size(), {{2, name}, {70, QStringLiteral("0")}});
}

quint64 SymbolTables::addRecord(TableKind kind, int added, const std::vector<TextTag>& tags)
{
    const Spot spot = this->spot(kind);
    const TagStyle& style = spot.style;
    const TableNames& names = namesOf(kind);
    countRecords(spot, kind, added);
    QByteArray record = style.tag(0, names.table);
    const quint64 handle = takeHandle();
    if (handle != 0) {
        record += style.handle(5, handle);
        if (const quint64 owner = tableHandle(kind))
            record += style.handle(330, owner);
        record += style.tag(100, "AcDbSymbolTableRecord") + style.tag(100, names.record);
    }
    for (const TextTag& tag : tags) {
        const bool isFlag = tag.code >= 60 && tag.code <= 79;
        record += isFlag ? style.number(tag.code, tag.value.toLongLong())
                         : style.tag(tag.code, m_data.codec.encode(tag.value));
    }
    m_data.journal.insert(spot.at, spot.first + static_cast<quint32>(added), record);
    return handle;
}

} // namespace drawing
