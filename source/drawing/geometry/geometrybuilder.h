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

/// Places what the entities of model space draw, block references unfolded, into groups. Of use
/// once.
class GeometryBuilder
{
public:
    GeometryBuilder(const GeometrySource& source, Progress* progress);
    /// Refuses only when cancelled.
    Expected<Geometry> build();

private:
    /// What ByBlock stands for where there is no block.
    static constexpr GeometryStyle kUnstyled{{GeometryColor::Source::Index, kColorForeground},
        {LayerId::None, LinetypePatterns::kContinuous}, {LayerId::None, kDefaultLineweight}, {}};
    /// What the block references around a definition decide for it.
    struct Context
    {
        LayerId layer = LayerId::None;   ///< Taken by what is on layer 0; None in model space.
        GeometryStyle style = kUnstyled; ///< For ByBlock.
        int owners = 0;
    };
    struct GroupKey
    {
        LayerId layer;
        int owners;
        bool isThroughViewports;
        GeometryStyle style;

        friend bool operator==(const GroupKey& a, const GroupKey& b)
        {
            return a.layer == b.layer && a.owners == b.owners &&
                   a.isThroughViewports == b.isThroughViewports && a.style == b.style;
        }
        friend uint qHash(const GroupKey& key, uint seed = 0)
        {
            return ::qHash(
                quint64(static_cast<uint>(key.layer)) << 32 ^ static_cast<uint>(key.owners),
                drawing::qHash(key.style, seed));
        }
    };
    /// A ray or a construction line.
    struct EndlessLine
    {
        std::size_t group;
        QPointF from;
        QPointF direction;
        bool bothWays;
        int entity;
        quint32 sequence;
    };

    bool isCancelled() const { return m_progress && m_progress->cancelled; }
    bool goOn(std::size_t done, std::size_t total);
    const Definition& definitionOf(int block);
    /// True when there is no room for more; what was left out is noted.
    bool isFull();
    LayerId layerOf(const EntityStyle& style, const Context& context) const;
    GeometryColor colorOf(const EntityStyle& style, const Context& context) const;
    GeometryStyle styleOf(const EntityStyle& style, const Context& context) const;
    /// The list of `owners` with one more layer.
    int ownersWith(int owners, LayerId layer);
    GeometryGroup& groupFor(const EntityStyle& style, const Context& context);
    void emitDefinition(
        const Definition& definition, const Transform3& place, const Context& context, int depth);
    void emitShape(const Definition& definition, const Definition::Shape& shape,
        const Transform3& place, const Context& context);
    /// Kept until the extents are known.
    void noteEndless(
        const Definition::Endless& line, const Transform3& place, const Context& context);
    /// Draws endless lines through what else there is.
    void emitEndless();
    void emitText(const Definition::Text& text, const Transform3& place, const Context& context);
    void emitReference(const Definition::Reference& reference, const Transform3& place,
        const Context& context, int depth);
    /// The part of an endless line inside the box; false when there is none.
    static bool clip(const EndlessLine& line, const Box& box, QPointF ends[2]);

    const GeometrySource m_source;
    Progress* m_progress;
    std::shared_ptr<const LinetypePatterns> m_linetypes;
    EntityReader m_reader;
    bool m_isThroughViewports = false; ///< What is being drawn.
    std::vector<std::optional<Definition>> m_definitions;
    std::vector<char> m_active; ///< Blocks being drawn right now.
    Geometry m_geometry;
    QHash<GroupKey, std::size_t> m_groupIndex;
    std::map<std::pair<int, LayerId>, int> m_ownerIndex;
    std::vector<EndlessLine> m_endless;
    std::size_t m_vertices = 0;
    std::size_t m_pieces = 0;
    int m_instances = 0;
    int m_entity = -1;
    int m_percent = -1;
};

} // namespace drawing
