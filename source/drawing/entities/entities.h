#pragma once

#include "layers/layer.h"
#include "ownproperties.h"

#include <QString>

#include <vector>

namespace drawing {

/// Those that are treated otherwise than the rest.
enum class EntityKind : quint8 {
    Other,
    Polyline,
    Vertex,
    Seqend,
    Insert,
    Attrib,
    Viewport,
    Proxy ///< Of an application that was missing when the file was written.
};

/// Where an entity stands in the file and what it is on. What follows an owner (VERTEX, ATTRIB,
/// SEQEND) has an entry of its own right behind the owner's.
struct Entity
{
    qint64 begin = 0; ///< File offset of its `0` group.
    qint64 end = 0;   ///< File offset behind its last tag.
    LayerId layer = LayerId::None;
    int block = -1; ///< Index into `Drawing::blocks()`; -1 in the ENTITIES section.
    EntityKind kind = EntityKind::Other;
    bool paperSpace = false; ///< Group 67 = 1; meaningful in the ENTITIES section.
    bool subEntity = false;  ///< Follows an owner; does not count as an entity of its own.
    bool removed = false; ///< Deleted; it keeps its place, so that indices of entities stay good.
    OwnProperties own;    ///< What it does not take from its layer.

    ByteRange range() const { return {begin, end}; }
};

/// A block definition: its entities are `entities[first .. first + count)`.
struct Block
{
    QString name;
    int first = 0;
    int count = 0;
    double baseX = 0;
    double baseY = 0;
    bool layout = false; ///< *Model_Space, *Paper_Space and their like.
};

} // namespace drawing
