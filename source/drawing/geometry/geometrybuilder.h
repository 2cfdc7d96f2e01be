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

/// Places what the entities of model space draw, block references unfolded, into groups. What a
/// block holds is read once, however many ranges are built.
class GeometryBuilder
{
public:
    /// What the source refers to, and the room, must outlive this.
    GeometryBuilder(const GeometrySource& source, GeometryRoom& room, Progress* progress);
    /// What these entities draw, endless lines left to be drawn. Refuses only when cancelled.
    Expected<Geometry> build(const EntityRange& range);

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
    /// The place in the order of drawing of one more piece.
    quint32 nextSequence()
    {
        return static_cast<quint32>(m_geometry.amount.pieces + m_used.pieces++);
    }
    void takeRoom();
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
    void emitText(const Definition::Text& text, const Transform3& place, const Context& context);
    void emitReference(const Definition::Reference& reference, const Transform3& place,
        const Context& context, int depth);

    const GeometrySource m_source;
    GeometryRoom& m_room;
    Progress* m_progress;
    PictureSwitches m_switches;
    std::shared_ptr<const LinetypePatterns> m_linetypes;
    EntityReader m_reader;
    bool m_isThroughViewports = false; ///< What is being drawn.
    std::vector<std::optional<Definition>> m_definitions;
    std::vector<char> m_active; ///< Blocks being drawn right now.
    Geometry m_geometry;
    QHash<GroupKey, std::size_t> m_groupIndex;
    std::map<std::pair<int, LayerId>, int> m_ownerIndex;
    GeometryAmount m_used; ///< Since room was taken last.
    int m_entity = -1;
    int m_percent = -1;
};

} // namespace drawing
