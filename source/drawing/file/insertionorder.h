#pragma once

#include <QtGlobal>

namespace drawing {

/// The order of insertions at the same place of a file. Missing sections may all be created at one
/// place, so the contents of each must stay between its head and its tail.
enum InsertionOrder : quint32 {
    kHeaderHead,
    // Used inside records and entities, where no section begins.
    kNewHandle,
    kNewLayerName,
    kNewExtension,
    kNewFrozenLayers,
    kNewVariables = 0x10, ///< Plus the number of the variable.
    kHeaderTail = 0x80,
    kTablesHead = 0x100,
    // A table consists of its head, its records and its tail. The tail has the last order of the
    // table's span.
    kNewTables = 0x10000000, ///< Plus one span for each kind of table before it.
    kTableSpan = 0x10000000,
    kTablesTail = 0x70000000,
    kObjectsHead = 0x72000000,
    kNewObjects = 0x72000001, ///< Plus the number of the object.
    kObjectsTail = 0x7f000000,
};

} // namespace drawing
