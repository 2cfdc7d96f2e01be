#include "drawingindexer.h"

#include "entitykind.h"
#include "file/groupcode.h"
#include "file/progress.h"

#include <algorithm>

namespace drawing {

namespace {

constexpr qint64 kReportEvery = 1 << 20;

} // namespace

std::optional<IndexFault> DrawingIndexer::run(FileIndex& file, EntityIndex& entities)
{
    m_file = &file;
    m_entities = &entities;
    reserveEntities();
    readSections();
    return m_fault;
}

/// Reserves memory for the usual number of entities. Growing repeatedly would take longer than
/// reserving memory that is never used.
void DrawingIndexer::reserveEntities()
{
    const int bytesOfOne = isBinary(m_tags.spelling()) ? 128 : 256;
    const auto expected = static_cast<size_t>((m_tags.end() - m_tags.offset()) / bytesOfOne);
    m_entities->entities.reserve(expected);
    m_entities->layerNameAt.reserve(expected);
}

bool DrawingIndexer::fail(IndexFaultKind kind, qint64 offset)
{
    m_fault = m_whole;
    m_fault->kind = kind;
    m_fault->offset = offset;
    m_fault->section = m_section;
    return false;
}

/// Records why there is no further tag.
bool DrawingIndexer::failed(ScanResult result)
{
    const qint64 at = m_tags.offset();
    switch (result) {
    case ScanResult::BadCode:
        return fail(IndexFaultKind::BadCode, at);
    case ScanResult::TooLong:
        return fail(IndexFaultKind::TooLong, at);
    default:
        return fail(IndexFaultKind::CutOff, m_tags.end());
    }
}

bool DrawingIndexer::next()
{
    const ScanResult result = m_tags.read(m_tag);
    return result == ScanResult::Tag || failed(result);
}

/// Whether the section continues at the `0` group that was just read.
bool DrawingIndexer::goesOn()
{
    if (m_tag.begin() >= m_nextReport)
        report();
    if (m_fault)
        return false;
    markWhole(m_tag.begin());
    const std::string_view name = m_tag.trimmed();
    if (name == "ENDSEC")
        return false;
    if (name == "SECTION")
        markWhole(-1); // The part that follows may be intact, too.
    if (name == "SECTION" || name == "EOF")
        return fail(IndexFaultKind::SectionNotEnded, m_tag.begin());
    return true;
}

void DrawingIndexer::report()
{
    m_nextReport = m_tag.begin() + kReportEvery;
    if (!m_progress)
        return;
    if (m_progress->report)
        m_progress->report(static_cast<int>(m_tag.begin() * 100 / m_tags.end()));
    if (m_progress->cancelled)
        fail(IndexFaultKind::Cancelled, m_tag.begin());
}

bool DrawingIndexer::readSections()
{
    do {
        if (!m_tags.next(m_tag))
            return fail(IndexFaultKind::NotTagged, 0);
    } while (m_tag.code == group::kComment);
    if (m_tag.code != 0 || m_tag.trimmed() != "SECTION")
        return fail(IndexFaultKind::NotTagged, 0);
    m_file->firstSection = m_tag.begin();
    while (m_tag.code != 0 || m_tag.trimmed() != "EOF") {
        const bool isSection = m_tag.code == 0 && m_tag.trimmed() == "SECTION";
        if (!isSection && m_tag.code != group::kComment)
            return fail(IndexFaultKind::OutsideSections, m_tag.begin());
        if (isSection && !readSection())
            return false;
        if (!next())
            return false;
    }
    m_file->eof = m_tag.begin();
    if (m_file->firstBody < 0)
        m_file->firstBody = m_tag.begin();
    return true;
}

/// Reads a section up to and including its ENDSEC.
bool DrawingIndexer::readSection()
{
    const qint64 begin = m_tag.begin();
    if (!next())
        return false;
    m_section = m_tag.trimmed();
    if (m_tag.code != group::kName || m_section.empty())
        return fail(IndexFaultKind::SectionWithoutName, m_tag.begin());
    markWhole(m_tag.end());
    m_whole.inSection = true;
    const bool isBody = m_section != "HEADER" && m_section != "CLASSES" && m_section != "TABLES";
    if (isBody && m_file->firstBody < 0)
        m_file->firstBody = begin;
    readContents();
    if (m_fault)
        return false;
    if (m_section == "HEADER")
        m_file->headerEnd = m_tag.begin();
    if (m_section == "TABLES")
        m_file->tablesEnd = m_tag.begin();
    if (m_section == "OBJECTS")
        m_file->objectsEnd = m_tag.begin();
    m_section = {};
    m_whole = {};
    markWhole(m_tag.end());
    return true;
}

/// Reads the contents of a section. An unknown section may name layers as well, so it is read like
/// one with entities, which all edits take into account.
bool DrawingIndexer::readContents()
{
    constexpr std::string_view kNamingNoLayers[] = {"CLASSES", "THUMBNAILIMAGE", "ACDSDATA"};
    if (m_section == "HEADER")
        return readHeader();
    if (m_section == "TABLES")
        return readTables();
    if (m_section == "BLOCKS")
        return readBlocks();
    if (m_section == "OBJECTS")
        return readObjects();
    const bool isIdle = std::find(std::begin(kNamingNoLayers), std::end(kNamingNoLayers),
                            m_section) != std::end(kNamingNoLayers);
    return isIdle ? skipRest() : readEntities();
}

bool DrawingIndexer::skipRest()
{
    while (next()) {
        if (m_tag.code == 0 && !goesOn())
            break;
    }
    return !m_fault;
}

bool DrawingIndexer::readHeader()
{
    Tag* value = nullptr;
    while (next()) {
        if (m_tag.code == 0 && !goesOn())
            break;
        if (m_tag.code == group::kVariable) {
            const HeaderVariable which = headerVariable(m_tag.trimmed());
            value = which == HeaderVariable::Count ? nullptr : &m_file->header[which];
        } else if (value) {
            *value = m_tag;
            value = nullptr;
        }
    }
    return !m_fault;
}

bool DrawingIndexer::readTables()
{
    if (!next())
        return false;
    for (;;) {
        if (m_tag.code != group::kType) {
            if (!next())
                return false;
            continue;
        }
        if (!goesOn())
            return !m_fault;
        const std::string_view name = m_tag.trimmed();
        if (name == "TABLE") {
            if (!readTable())
                return false;
        } else if (name == "ENDTAB") {
            if (!next())
                return false;
            m_whole.inTable = false;
            markWhole(m_tag.begin());
        } else {
            return fail(IndexFaultKind::OutsideTables, m_tag.begin());
        }
    }
}

/// Reads a table and stops at the `0` group that ends it. Anything that is not a record of the
/// table's kind is ignored.
bool DrawingIndexer::readTable()
{
    TablePlace read;
    read.head.begin = m_tag.begin();
    m_whole.inTable = false; // Without a head it is not a table yet.
    std::string_view name;
    bool isRecord = false;
    while (next()) {
        if (m_tag.code == group::kXdataLayer)
            m_entities->xdataNames.push_back(m_tag.valueRange().begin);
        if (m_tag.code == group::kName && name.empty() && read.endTab < 0)
            name = m_tag.trimmed();
        if (m_tag.code != 0)
            continue;
        if (name.empty())
            return fail(IndexFaultKind::TableWithoutName, read.head.begin);
        m_whole.inTable = true;
        if (isRecord)
            read.records.back().end = m_tag.begin();
        if (read.endTab < 0)
            read.head.end = m_tag.begin();
        read.endTab = m_tag.begin();
        if (!goesOn() || m_tag.trimmed() == "ENDTAB" || m_tag.trimmed() == "TABLE")
            break;
        isRecord = m_tag.trimmed() == name;
        if (isRecord)
            read.records.push_back({m_tag.begin(), m_tag.begin()});
    }
    const TableKind kind = tableKind(name);
    TablePlace& place = m_file->tables[kind];
    if (place.isNull())
        place = std::move(read);
    else
        place.records.insert(place.records.end(), read.records.begin(), read.records.end());
    return !m_fault;
}

bool DrawingIndexer::readBlocks()
{
    if (!next())
        return false;
    int block = -1;
    while (!m_fault) {
        if (m_tag.code != 0) {
            next();
            continue;
        }
        if (!goesOn())
            break;
        const bool isHead = m_tag.trimmed() == "BLOCK";
        const bool isEnd = m_tag.trimmed() == "ENDBLK";
        if (isHead || isEnd) {
            if (!readBlockHead())
                break;
            m_whole.inBlock = isHead;
            block = isHead ? static_cast<int>(m_entities->blocks.size()) - 1 : -1;
            continue;
        }
        readEntity(block);
        if (block >= 0)
            ++m_entities->blocks.back().count;
    }
    return !m_fault;
}

/// Reads a BLOCK or ENDBLK record and stops at the `0` group after it.
bool DrawingIndexer::readBlockHead()
{
    const bool isHead = m_tag.trimmed() == "BLOCK";
    Block block;
    block.first = static_cast<int>(m_entities->entities.size());
    Tag name;
    bool onLayer = false;
    while (next() && m_tag.code != 0) {
        switch (m_tag.code) {
        case group::kName:
            name = name.isNull() ? m_tag : name;
            break;
        case group::kLayer:
            if (!onLayer)
                m_entities->blockLayers.push_back({m_tag.valueRange().begin,
                    static_cast<LayerId>(m_entities->layerSpellings.intern(m_tag.text()))});
            onLayer = true;
            break;
        case 10:
            block.baseX = m_tag.real();
            break;
        case 20:
            block.baseY = m_tag.real();
            break;
        case group::kXdataLayer:
            m_entities->xdataNames.push_back(m_tag.valueRange().begin);
            break;
        default:
            break;
        }
    }
    if (isHead) {
        m_entities->blocks.push_back(block);
        m_entities->blockNames.push_back(name);
    }
    return !m_fault;
}

bool DrawingIndexer::readEntities()
{
    if (!next())
        return false;
    while (!m_fault) {
        if (m_tag.code != 0)
            next();
        else if (!goesOn())
            break;
        else
            readEntity(-1);
    }
    return !m_fault;
}

/// The state of an entity whose tags are being read.
struct DrawingIndexer::OpenEntity
{
    Entity entity;
    const char* first = nullptr; // The first of its bytes.
    quint32 nameAt = 0;
    // The tag belongs to the common data, which ends where another subclass begins.
    bool isCommon = true;
    bool inGroup = false; // The tag belongs to an application's group.
};

[[gnu::always_inline]] inline void DrawingIndexer::take(const Tag& tag, OpenEntity& open)
{
    switch (tag.code) {
    case group::kLayer:
        if (open.nameAt != 0)
            break;
        open.nameAt = static_cast<quint32>(tag.value - open.first);
        open.entity.layer = static_cast<LayerId>(m_entities->layerSpellings.intern(tag.text()));
        break;
    case group::kPaperSpace:
        open.entity.paperSpace = tag.integer() == 1;
        break;
    case group::kXdataLayer:
        m_entities->xdataNames.push_back(tag.valueRange().begin);
        break;
    case group::kSubclass:
    case group::kEmbedded:
        open.isCommon = tag.code == group::kSubclass && tag.trimmed() == kCommonData;
        break;
    case group::kBrace:
        open.inGroup = tag.text().substr(0, 1) == "{";
        break;
    case group::kColor:
    case group::kTrueColor:
    case group::kColorName:
    case group::kLinetype:
    case group::kLineweight:
    case group::kTransparency:
        if (open.isCommon && !open.inGroup)
            open.entity.own |= ownPropertiesIn(tag);
        break;
    default:
        break;
    }
}

/// Reads an entity and stops at the `0` group after it. Most tags of a file are read here.
bool DrawingIndexer::readEntity(int block)
{
    OpenEntity open;
    Entity& entity = open.entity;
    entity.begin = m_tag.begin();
    entity.kind = entityKind(m_tag.trimmed());
    entity.block = block;
    entity.subEntity = isSubEntity(entity.kind);
    open.first = m_tag.first;
    TagReader tags = m_tags; // A local copy, which the compiler can keep in registers.
    Tag tag;
    const ScanResult result = withSpelling(m_tags.spelling(), [&](auto spelling) {
        ScanResult last = ScanResult::Tag;
        while ((last = tags.readAs<decltype(spelling)::value>(tag)) == ScanResult::Tag &&
               tag.code != group::kType)
            take(tag, open);
        return last;
    });
    m_tags = tags;
    m_tag = tag;
    const bool isWhole = result == ScanResult::Tag || failed(result);
    entity.end = isWhole ? m_tag.begin() : m_tags.end();
    m_entities->entities.push_back(entity);
    m_entities->layerNameAt.push_back(open.nameAt);
    return isWhole;
}

bool DrawingIndexer::readObjects()
{
    if (!next())
        return false;
    while (!m_fault) {
        if (m_tag.code == 0 && !goesOn())
            break;
        ObjectPlace object;
        object.range.begin = m_tag.begin();
        object.kind = objectKind(m_tag.trimmed());
        while (next() && m_tag.code != 0) {
            if (m_tag.code == group::kHandle && object.handle == 0)
                object.handle = m_tag.handle();
            else if (m_tag.code == group::kXdataLayer)
                m_entities->xdataNames.push_back(m_tag.valueRange().begin);
        }
        object.range.end = m_tag.begin();
        m_file->objects.push_back(object);
    }
    return !m_fault;
}

} // namespace drawing
