#pragma once

#include "entities.h"
#include "nameinterner.h"
#include "tag.h"

#include <array>
#include <vector>

namespace drawing {

enum class HeaderVariable {
    Version,
    CodePage,
    CurrentLayer,
    HandleSeed,
    PlotStyleMode,
    TileMode,
    Count
};

/// In the order in which missing ones are made: layers name linetypes.
enum class TableKind { Linetype, Layer, Style, AppId, BlockRecord, Other, Count };

/// A table of the TABLES section.
struct TablePlace
{
    ByteRange head; ///< From `0 TABLE` to the first record; null when the file has no such table.
    qint64 endTab = -1; ///< File offset behind the last record.
    std::vector<ByteRange> records;

    bool isNull() const { return head.isNull(); }
};

enum class ObjectKind : quint8 { Other, Dictionary, XRecord, LayerList, Layout };

/// An object of the OBJECTS section. `LayerList` objects name layers in their 8 groups.
struct ObjectPlace
{
    ByteRange range;
    quint64 handle = 0;
    ObjectKind kind = ObjectKind::Other;
};

/// A place outside the entities where a layer is named: where the value begins.
struct LayerNamePlace
{
    qint64 value = 0;
    LayerId layer = LayerId::None;
};

/// Where things stand in the file. Names of layers are kept as spelled in `layerSpellings`; until
/// the layers are known, a `LayerId` here is the number of a spelling.
struct DrawingIndex
{
    std::array<Tag, static_cast<size_t>(HeaderVariable::Count)> header; ///< Their values.
    std::array<TablePlace, static_cast<size_t>(TableKind::Count)> tables;
    std::vector<Block> blocks; ///< Names are filled in when the code page is known.
    std::vector<Tag> blockNames;
    std::vector<Entity> entities;
    /// For each entity where its layer name stands, counted from its begin; 0 when it names none.
    std::vector<quint32> layerNameAt;
    std::vector<LayerNamePlace> blockLayers; ///< Of BLOCK and ENDBLK.
    std::vector<qint64> xdataNames;          ///< Where the values of the 1003 groups begin.
    std::vector<ObjectPlace> objects;
    NameInterner layerSpellings;

    qint64 headerEnd = -1;  ///< The HEADER section's `0 ENDSEC`; -1 when there is no such section.
    qint64 tablesEnd = -1;  ///< The TABLES section's `0 ENDSEC`.
    qint64 objectsEnd = -1; ///< The OBJECTS section's `0 ENDSEC`.
    qint64 eof = -1;        ///< `0 EOF`.
    qint64 firstSection = -1; ///< `0 SECTION` of the first section.
    qint64 firstBody = -1;    ///< Of the first section that must follow TABLES; else `0 EOF`.

    const Tag& variable(HeaderVariable which) const { return header[static_cast<size_t>(which)]; }
    const TablePlace& table(TableKind which) const { return tables[static_cast<size_t>(which)]; }
};

} // namespace drawing
