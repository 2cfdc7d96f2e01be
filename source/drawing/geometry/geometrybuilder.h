#pragma once

#include "entities/entitytable.h"
#include "file/progress.h"
#include "geometry.h"
#include "geometryreader.h"
#include "layers/colorindex.h"

#include <QHash>

#include <map>
#include <optional>

namespace drawing {

/// Turns entities into groups of geometry and expands block references. Each block definition is
/// read only once, however many ranges are built.
class GeometryBuilder
{
public:
    /// Everything that `source` refers to, and `room`, must outlive this object.
    GeometryBuilder(const GeometrySource& source, GeometryRoom& room, Progress* progress);
    /// The geometry of these entities. Endless lines are collected but not drawn. Refuses only when
    /// cancelled.
    Expected<Geometry> build(const EntityRange& range);

private:
    /// The style that ByBlock gives outside of any block.
    static constexpr GeometryStyle kUnstyled{{GeometryColor::Source::Index, kColorForeground},
        {LayerId::None, LinetypePatterns::kContinuous}, {LayerId::None, kDefaultLineweight}, {}};
    /// What the block references around a definition decide about it.
    struct Context
    {
        LayerId layer = LayerId::None; ///< The layer for contents on layer 0; None in model space.
        GeometryStyle style = kUnstyled; ///< The style for ByBlock.
        int owners = 0;
        LayerId whole = LayerId::None;
    };
    struct GroupKey
    {
        LayerId layer;
        int owners;
        LayerId whole;
        bool isThroughViewports;
        GeometryStyle style;

        friend bool operator==(const GroupKey& a, const GroupKey& b)
        {
            return a.layer == b.layer && a.owners == b.owners && a.whole == b.whole &&
                   a.isThroughViewports == b.isThroughViewports && a.style == b.style;
        }
        friend uint qHash(const GroupKey& key, uint seed = 0)
        {
            return ::qHash(
                quint64(static_cast<uint>(key.layer)) << 32 ^ static_cast<uint>(key.owners),
                drawing::qHash(key.style, seed));
        }
    };
    bool isCancelled() const { return m_progress && m_progress->cancelled; }
    void startAnew();
    /// The position of the next piece in the drawing order.
    quint64 nextPlace()
    {
        const auto piece = static_cast<quint32>(m_geometry.amount.pieces + m_used.pieces++);
        return static_cast<quint64>(m_rank) << 32 | piece;
    }
    void takeRoom();
    bool goOn(std::size_t done, std::size_t total);
    const Definition& definitionOf(int block);
    /// Whether no more geometry may be added. If so, the geometry is marked as truncated.
    bool isFull();
    LayerId layerOf(const EntityStyle& style, const Context& context) const;
    GeometryColor colorOf(const EntityStyle& style, const Context& context) const;
    GeometryStyle styleOf(const EntityStyle& style, const Context& context) const;
    /// The index of the list of `owners` with `layer` appended.
    int ownersWith(int owners, LayerId layer);
    GeometryGroup& groupFor(const EntityStyle& style, const Context& context);
    void emitDefinition(
        const Definition& definition, const Transform3& place, const Context& context, int depth);
    void emitShape(const Definition& definition, const Definition::Shape& shape,
        const Transform3& place, const Context& context);
    /// Keeps an endless line until the extents are known.
    void noteEndless(
        const Definition::Endless& line, const Transform3& place, const Context& context);
    void emitText(const Definition::Text& text, const Transform3& place, const Context& context);
    void emitReference(const Definition::Reference& reference, const Transform3& place,
        const Context& context, int depth);

    const GeometrySource m_source;
    GeometryRoom& m_room;
    Progress* m_progress;
    PictureSwitches m_switches;
    std::shared_ptr<const LinetypePatterns> m_linetypes;
    EntityReader m_reader;
    /// Whether the geometry being built is seen through viewports.
    bool m_isThroughViewports = false;
    std::vector<std::optional<Definition>> m_definitions;
    std::vector<char> m_active; ///< For each block, whether it is currently being drawn.
    Geometry m_geometry;
    QHash<GroupKey, std::size_t> m_groupIndex;
    std::map<std::pair<int, LayerId>, int> m_ownerIndex;
    GeometryAmount m_used; ///< The amount used since room was last taken.
    int m_entity = -1;
    std::size_t m_rank = 0; ///< Of the entity.
    int m_percent = -1;
};

} // namespace drawing
