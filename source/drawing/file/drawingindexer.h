#pragma once

#include "drawingindex.h"
#include "tagscan.h"

#include <optional>

namespace drawing {

struct Progress;

enum class IndexFaultKind { NotTagged, BadCode, TooLong, CutOff, SectionNotEnded, Cancelled };

/// Why a file cannot be indexed, and where.
struct IndexFault
{
    IndexFaultKind kind = IndexFaultKind::NotTagged;
    qint64 offset = 0;
    std::string_view section; ///< The section it was found in; may be empty.
};

/// Makes the index in one pass over the bytes.
class DrawingIndexer
{
public:
    /// `bytes` must outlive the index made. `progress` may be null.
    DrawingIndexer(std::string_view bytes, Progress* progress);

    /// Fills `index`; the fault that stopped it, if any.
    std::optional<IndexFault> run(DrawingIndex& index);

private:
    bool next();
    bool fail(IndexFaultKind kind, qint64 offset);
    bool goesOn();
    bool skipRest();
    void report();
    qint64 at() const { return m_tag.begin - m_begin; }
    ByteRange valueRange() const { return {m_tag.value - m_begin, m_tag.valueEnd - m_begin}; }

    bool readSections();
    bool readSection();
    bool readHeader();
    bool readTables();
    bool readTable();
    bool readBlocks();
    bool readBlockHead();
    bool readEntities();
    bool readEntity(int block);
    bool readObjects();
    EntityKind kindOf(std::string_view name);

    const char* m_begin = nullptr;
    const char* m_end = nullptr;
    const char* m_next = nullptr;
    const char* m_nextReport = nullptr;
    Progress* m_progress = nullptr;
    RawTag m_tag;
    DrawingIndex* m_index = nullptr;
    std::string_view m_section;
    std::string_view m_lastKindName;
    EntityKind m_lastKind = EntityKind::Other;
    std::optional<IndexFault> m_fault;
};

} // namespace drawing
