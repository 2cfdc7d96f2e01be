#include "drawingindexer.h"

#include "drawing.h"
#include "dxfnames.h"
#include "dxftags.h"

#include <charconv>

namespace drawing {

namespace {

constexpr qint64 kReportEvery = 1 << 20;

quint64 handleOf(std::string_view value)
{
    const std::string_view text = trimmedView(value);
    quint64 handle = 0;
    std::from_chars(text.data(), text.data() + text.size(), handle, 16);
    return handle;
}

double number(const RawTag& tag)
{
    const std::string_view text = trimmedView(tag.text());
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

} // namespace

DrawingIndexer::DrawingIndexer(std::string_view bytes, Progress* progress)
    : m_begin(bytes.data()),
      m_end(bytes.data() + bytes.size()),
      m_next(m_begin),
      m_nextReport(m_begin),
      m_progress(progress)
{
    constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";
    if (bytes.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        m_next += kByteOrderMark.size();
}

std::optional<IndexFault> DrawingIndexer::run(DrawingIndex& index)
{
    m_index = &index;
    readSections();
    return m_fault;
}

bool DrawingIndexer::fail(IndexFaultKind kind, qint64 offset)
{
    m_fault = IndexFault{kind, offset, m_section};
    return false;
}

bool DrawingIndexer::next()
{
    switch (scanTag(m_next, m_end, m_tag)) {
    case ScanResult::Tag:
        m_next = m_tag.after;
        return true;
    case ScanResult::BadCode:
        return fail(IndexFaultKind::BadCode, m_next - m_begin);
    case ScanResult::TooLong:
        return fail(IndexFaultKind::TooLong, m_tag.value - m_begin);
    default:
        return fail(IndexFaultKind::CutOff, m_end - m_begin);
    }
}

/// Tells whether the section goes on at the `0` group just read.
bool DrawingIndexer::goesOn()
{
    if (m_tag.begin >= m_nextReport)
        report();
    if (m_fault)
        return false;
    const std::string_view name = m_tag.text();
    if (name == "ENDSEC")
        return false;
    if (name == "SECTION" || name == "EOF")
        return fail(IndexFaultKind::SectionNotEnded, at());
    return true;
}

void DrawingIndexer::report()
{
    m_nextReport = m_tag.begin + kReportEvery;
    if (!m_progress)
        return;
    if (m_progress->report)
        m_progress->report(static_cast<int>((m_tag.begin - m_begin) * 100 / (m_end - m_begin)));
    if (m_progress->cancelled)
        fail(IndexFaultKind::Cancelled, at());
}

bool DrawingIndexer::readSections()
{
    constexpr int kComment = 999;
    do {
        const ScanResult result = scanTag(m_next, m_end, m_tag);
        if (result != ScanResult::Tag)
            return fail(IndexFaultKind::NotTagged, 0);
        m_next = m_tag.after;
    } while (m_tag.code == kComment);
    if (m_tag.code != 0 || m_tag.text() != "SECTION")
        return fail(IndexFaultKind::NotTagged, 0);
    m_index->firstSection = at();
    while (m_tag.code != 0 || m_tag.text() != "EOF") {
        const bool isSection = m_tag.code == 0 && m_tag.text() == "SECTION";
        if (isSection && !readSection())
            return false;
        m_section = {};
        if (!next())
            return false;
    }
    m_index->eof = at();
    if (m_index->firstBody < 0)
        m_index->firstBody = at();
    return true;
}

/// Reads a section up to its ENDSEC.
bool DrawingIndexer::readSection()
{
    const qint64 begin = at();
    if (!next())
        return false;
    if (m_tag.code == 2)
        m_section = m_tag.text();
    const bool isBody = m_section != "HEADER" && m_section != "CLASSES" && m_section != "TABLES";
    if (isBody && m_index->firstBody < 0)
        m_index->firstBody = begin;
    if (m_section == "HEADER")
        readHeader();
    else if (m_section == "TABLES")
        readTables();
    else if (m_section == "BLOCKS")
        readBlocks();
    else if (m_section == "ENTITIES")
        readEntities();
    else if (m_section == "OBJECTS")
        readObjects();
    else
        skipRest();
    if (m_fault)
        return false;
    if (m_section == "HEADER")
        m_index->headerEnd = at();
    if (m_section == "TABLES")
        m_index->tablesEnd = at();
    if (m_section == "OBJECTS")
        m_index->objectsEnd = at();
    return true;
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
    ByteRange* value = nullptr;
    while (next()) {
        if (m_tag.code == 0 && !goesOn())
            break;
        if (m_tag.code == 9) {
            const HeaderVariable which = headerVariable(m_tag.text());
            value = which == HeaderVariable::Count ? nullptr
                                                   : &m_index->header[static_cast<size_t>(which)];
        } else if (value) {
            *value = valueRange();
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
        if (m_tag.code == 0 && !goesOn())
            return !m_fault;
        const bool isTable = m_tag.code == 0 && m_tag.text() == "TABLE";
        if (!(isTable ? readTable() : next()))
            return false;
    }
}

/// Reads a table and stops at the `0` group that ends it. What is no record of its kind is left
/// alone.
bool DrawingIndexer::readTable()
{
    TablePlace read;
    read.head.begin = at();
    std::string_view name;
    bool isRecord = false;
    while (next()) {
        if (m_tag.code == 1003)
            m_index->xdataNames.push_back(m_tag.value - m_begin);
        if (m_tag.code == 2 && name.empty() && read.endTab < 0)
            name = m_tag.text();
        if (m_tag.code != 0)
            continue;
        if (isRecord)
            read.records.back().end = at();
        if (read.endTab < 0)
            read.head.end = at();
        read.endTab = at();
        if (!goesOn() || m_tag.text() == "ENDTAB" || m_tag.text() == "TABLE")
            break;
        isRecord = m_tag.text() == name;
        if (isRecord)
            read.records.push_back({at(), at()});
    }
    const TableKind kind = tableKind(name);
    TablePlace& place = m_index->tables[static_cast<size_t>(kind)];
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
        const bool isHead = m_tag.text() == "BLOCK";
        const bool isEnd = m_tag.text() == "ENDBLK";
        if (isHead || isEnd) {
            readBlockHead();
            block = isHead ? static_cast<int>(m_index->blocks.size()) - 1 : -1;
            continue;
        }
        readEntity(block);
        if (block >= 0)
            ++m_index->blocks.back().count;
    }
    return !m_fault;
}

/// Reads a BLOCK or ENDBLK record and stops at the `0` group behind it.
bool DrawingIndexer::readBlockHead()
{
    const bool isHead = m_tag.text() == "BLOCK";
    Block block;
    block.first = static_cast<int>(m_index->entities.size());
    ByteRange name;
    bool onLayer = false;
    while (next() && m_tag.code != 0) {
        switch (m_tag.code) {
        case 2:
            name = name.isNull() ? valueRange() : name;
            break;
        case 8:
            if (!onLayer)
                m_index->blockLayers.push_back({m_tag.value - m_begin,
                    static_cast<LayerId>(m_index->layerSpellings.intern(m_tag.text()))});
            onLayer = true;
            break;
        case 10:
            block.baseX = number(m_tag);
            break;
        case 20:
            block.baseY = number(m_tag);
            break;
        case 1003:
            m_index->xdataNames.push_back(m_tag.value - m_begin);
            break;
        default:
            break;
        }
    }
    if (isHead) {
        m_index->blocks.push_back(block);
        m_index->blockNames.push_back(name);
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

/// Reads an entity and stops at the `0` group behind it. Most of a file's tags pass here.
bool DrawingIndexer::readEntity(int block)
{
    Entity entity;
    entity.begin = at();
    entity.kind = kindOf(m_tag.text());
    entity.block = block;
    entity.subEntity = isSubEntity(entity.kind);
    quint32 nameAt = 0;
    RawTag tag = m_tag;
    ScanResult result = ScanResult::Tag;
    while ((result = scanTag(tag.after, m_end, tag)) == ScanResult::Tag && tag.code != 0) {
        if (tag.code == 8 && nameAt == 0) {
            nameAt = static_cast<quint32>(tag.value - m_begin - entity.begin);
            entity.layer = static_cast<LayerId>(m_index->layerSpellings.intern(tag.text()));
        } else if (tag.code == 67) {
            entity.paperSpace = trimmedView(tag.text()) == "1";
        } else if (tag.code == 1003) {
            m_index->xdataNames.push_back(tag.value - m_begin);
        }
    }
    // What ended the loop is read again the common way, which knows the faults.
    m_next = result == ScanResult::Tag ? tag.begin : tag.after;
    const bool isWhole = next();
    entity.end = isWhole ? at() : m_end - m_begin;
    m_index->entities.push_back(entity);
    m_index->layerNameAt.push_back(nameAt);
    return isWhole;
}

EntityKind DrawingIndexer::kindOf(std::string_view name)
{
    if (name == m_lastKindName)
        return m_lastKind;
    m_lastKindName = name;
    m_lastKind = entityKind(name);
    return m_lastKind;
}

bool DrawingIndexer::readObjects()
{
    if (!next())
        return false;
    while (!m_fault) {
        if (m_tag.code == 0 && !goesOn())
            break;
        ObjectPlace object;
        object.begin = at();
        object.kind = objectKind(m_tag.text());
        while (next() && m_tag.code != 0) {
            if (m_tag.code == 5 && object.handle == 0)
                object.handle = handleOf(m_tag.text());
            else if (m_tag.code == 1003)
                m_index->xdataNames.push_back(m_tag.value - m_begin);
        }
        object.end = at();
        m_index->objects.push_back(object);
    }
    return !m_fault;
}

} // namespace drawing
