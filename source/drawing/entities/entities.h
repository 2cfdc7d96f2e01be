#pragma once

#include "layers/layer.h"
#include "ownproperties.h"

#include <QString>

#include <vector>

namespace drawing {

/// The kinds of entities that need special treatment.
enum class EntityKind : quint8 {
    Other,
    Polyline,
    Vertex,
    Seqend,
    Insert,
    Attrib,
    Viewport,
    Proxy ///< A proxy of an entity whose application was missing when the file was written.
};

/// Where an entity is in the file and which layer it is on. Subentities (VERTEX, ATTRIB, SEQEND)
/// have entries of their own directly after the entity that they belong to.
struct Entity
{
    qint64 begin = 0; ///< File offset of the entity's `0` group.
    qint64 end = 0;   ///< File offset after the entity's last tag.
    LayerId layer = LayerId::None;
    int block = -1; ///< Index into `Drawing::blocks()`; -1 in the ENTITIES section.
    EntityKind kind = EntityKind::Other;
    bool paperSpace = false; ///< Whether group 67 is 1; only meaningful in the ENTITIES section.
    /// Belongs to the entity before it and does not count as an entity of its own.
    bool subEntity = false;
    bool removed = false; ///< Deleted. The entry keeps its place so that entity indices stay valid.
    OwnProperties own;    ///< The properties that it does not take from its layer.

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
    /// Whether it is the block of a layout: *Model_Space, *Paper_Space and the like.
    bool layout = false;
};

} // namespace drawing
