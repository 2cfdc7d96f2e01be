#pragma once

#include "entitytable.h"
#include "file/fileindex.h"
#include "file/tagreader.h"

#include <optional>

namespace drawing {

struct Progress;

enum class IndexFaultKind {
    NotTagged,
    BadCode,
    TooLong,
    CutOff,
    SectionNotEnded,
    SectionWithoutName,
    OutsideSections,
    TableWithoutName,
    OutsideTables,
    Cancelled
};

/// Why and where a file cannot be indexed.
struct IndexFault
{
    IndexFaultKind kind = IndexFaultKind::NotTagged;
    qint64 offset = 0;
    std::string_view section; ///< The section that contains the fault; may be empty.
    /// Everything before this offset is intact; -1 when opening the intact part is not worthwhile.
    qint64 wholeEnd = -1;
    /// What is still open at `wholeEnd` and has to be closed there.
    bool inSection = false;
    bool inTable = false;
    bool inBlock = false;
};

/// Builds the index of a file in one pass over its tags.
class DrawingIndexer
{
public:
    /// The bytes of `tags` must outlive the index. `progress` may be null.
    DrawingIndexer(const TagReader& tags, Progress* progress) : m_tags(tags), m_progress(progress)
    {
    }

    /// Fills both indices. Returns the fault that stopped it, if any.
    std::optional<IndexFault> run(FileIndex& file, EntityIndex& entities);

private:
    bool next();
    bool fail(IndexFaultKind kind, qint64 offset);
    bool failed(ScanResult result);
    bool goesOn();
    bool skipRest();
    void markWhole(qint64 end) { m_whole.wholeEnd = end; }
    void report();
    void reserveEntities();

    bool readSections();
    bool readSection();
    bool readContents();
    bool readHeader();
    bool readTables();
    bool readTable();
    bool readBlocks();
    bool readBlockHead();
    bool readEntities();
    bool readEntity(int block);
    struct OpenEntity;
    void take(const Tag& tag, OpenEntity& open);
    bool readObjects();

    TagReader m_tags;
    qint64 m_nextReport = 0;
    Progress* m_progress = nullptr;
    Tag m_tag;
    FileIndex* m_file = nullptr;
    EntityIndex* m_entities = nullptr;
    std::string_view m_section;
    IndexFault m_whole; // What is known about the intact part so far.
    std::optional<IndexFault> m_fault;
};

} // namespace drawing
