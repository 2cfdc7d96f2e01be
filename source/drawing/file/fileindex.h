#pragma once

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

/// The kinds are in the order in which missing tables are created, because layers refer to
/// linetypes.
enum class TableKind { Linetype, Layer, Style, AppId, BlockRecord, Other, Count };

/// A table of the TABLES section.
struct TablePlace
{
    /// From `0 TABLE` to the first record; null when the file does not have the table.
    ByteRange head;
    qint64 endTab = -1; ///< File offset after the last record.
    std::vector<ByteRange> records;

    bool isNull() const { return head.isNull(); }
};

/// The kinds of objects that need special treatment. `LayerList` objects name layers in 8 groups.
enum class ObjectKind : quint8 { Other, Dictionary, XRecord, LayerList, Section, Layout, Proxy };

/// An object of the OBJECTS section.
struct ObjectPlace
{
    ByteRange range;
    quint64 handle = 0;
    ObjectKind kind = ObjectKind::Other;
};

/// An array with one value per enumerator of an enumeration that ends in `Count`.
template <class Key, class Value>
class EnumArray
{
public:
    Value& operator[](Key key) { return m_values[static_cast<size_t>(key)]; }
    const Value& operator[](Key key) const { return m_values[static_cast<size_t>(key)]; }
    auto begin() const { return m_values.begin(); }
    auto end() const { return m_values.end(); }
    bool operator==(const EnumArray& other) const { return m_values == other.m_values; }

private:
    std::array<Value, static_cast<size_t>(Key::Count)> m_values{};
};

/// Where the parts of a file are, except for entities and blocks.
struct FileIndex
{
    EnumArray<HeaderVariable, Tag> header; ///< The values of the header variables.
    EnumArray<TableKind, TablePlace> tables;
    std::vector<ObjectPlace> objects;

    /// The HEADER section's `0 ENDSEC`; -1 when the file has no such section.
    qint64 headerEnd = -1;
    qint64 tablesEnd = -1;    ///< The TABLES section's `0 ENDSEC`.
    qint64 objectsEnd = -1;   ///< The OBJECTS section's `0 ENDSEC`.
    qint64 eof = -1;          ///< `0 EOF`.
    qint64 firstSection = -1; ///< `0 SECTION` of the first section.
    /// Begin of the first section that must follow TABLES; the `0 EOF` when there is none.
    qint64 firstBody = -1;
};

// Look-up of names in a file. Names without special treatment give the "other" value.

ObjectKind objectKind(std::string_view name);
TableKind tableKind(std::string_view name);
/// Returns `HeaderVariable::Count` for a variable that is not needed.
HeaderVariable headerVariable(std::string_view name);

/// The name of a header variable in files, and the group code of its value.
struct HeaderVariableName
{
    std::string_view name;
    int code;
};
const HeaderVariableName& nameOf(HeaderVariable which);

} // namespace drawing
