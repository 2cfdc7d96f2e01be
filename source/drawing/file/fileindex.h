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

/// `LayerList` objects name layers in their 8 groups.
enum class ObjectKind : quint8 { Other, Dictionary, XRecord, LayerList, Layout, Proxy };

/// An object of the OBJECTS section.
struct ObjectPlace
{
    ByteRange range;
    quint64 handle = 0;
    ObjectKind kind = ObjectKind::Other;
};

/// A value for each of an enumeration that ends in `Count`.
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

/// Where the parts of a file stand, apart from what is drawn.
struct FileIndex
{
    EnumArray<HeaderVariable, Tag> header; ///< Their values.
    EnumArray<TableKind, TablePlace> tables;
    std::vector<ObjectPlace> objects;

    qint64 headerEnd = -1;  ///< The HEADER section's `0 ENDSEC`; -1 when there is no such section.
    qint64 tablesEnd = -1;  ///< The TABLES section's `0 ENDSEC`.
    qint64 objectsEnd = -1; ///< The OBJECTS section's `0 ENDSEC`.
    qint64 eof = -1;        ///< `0 EOF`.
    qint64 firstSection = -1; ///< `0 SECTION` of the first section.
    qint64 firstBody = -1;    ///< Of the first section that must follow TABLES; else `0 EOF`.
};

// What the names in a file stand for, each with "other" for those nobody asks for.

ObjectKind objectKind(std::string_view name);
TableKind tableKind(std::string_view name);
/// `HeaderVariable::Count` for a variable that is not needed.
HeaderVariable headerVariable(std::string_view name);

/// What is written for it, and the code of its value.
struct HeaderVariableName
{
    std::string_view name;
    int code;
};
const HeaderVariableName& nameOf(HeaderVariable which);

} // namespace drawing
