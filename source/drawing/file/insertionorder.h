#pragma once

#include <QtGlobal>

namespace drawing {

/// Insertions at one place of a file follow each other in this order. Sections that are missing are
/// made at the same place: what belongs to one must stand between its head and its tail.
enum InsertionOrder : quint32 {
    kHeaderHead,
    // Within records and entities, where no section begins.
    kNewHandle,
    kNewLayerName,
    kNewExtension,
    kNewFrozenLayers,
    kNewVariables = 0x10, ///< And the number of the variable.
    kHeaderTail = 0x80,
    kTablesHead = 0x100,
    // A table is its head, its records and its tail, which takes the last order of its span.
    kNewTables = 0x10000000, ///< And a span for each kind of table before it.
    kTableSpan = 0x10000000,
    kTablesTail = 0x70000000,
    kObjectsHead = 0x72000000,
    kNewObjects = 0x72000001, ///< And the number of the object.
    kObjectsTail = 0x7f000000,
};

} // namespace drawing
