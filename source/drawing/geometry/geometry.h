#pragma once

#include "file/error.h"
#include "geometryindex.h"
#include "geometrymath.h"
#include "geometrystyle.h"
#include "linetypepattern.h"
#include "pictureswitches.h"

#include <QString>

#include <atomic>
#include <memory>
#include <vector>

namespace drawing {

class DrawOrder;
class DrawingFile;
class EntityTable;
struct Entity;
class LayerOverrides;
class LayoutTable;
class LinetypeTable;
class ViewportLayers;
struct Progress;

/// A run of vertices of a group that belong together. A vertex of NaN begins a new part.
struct Primitive
{
    enum class Shape : quint8 { Lines, Fill, Dot, Mask };

    quint32 first = 0;
    quint32 count = 0;
    /// Index into `Drawing::entities()` of the entity that was drawn in model space.
    int entity = -1;
    quint64 order = 0; ///< The drawing order, across all groups of all parts.
    /// Fills use the even-odd rule; a mask covers what was drawn before it.
    Shape shape = Shape::Lines;
    bool patternRestarts = false; ///< The linetype pattern restarts at each vertex.
    float linetypeScale = 1;      ///< The entity's own scale times that of the surrounding blocks.
    float width = 0;              ///< Width of lines in drawing units; 0 to use the lineweight.
    Box bounds;
};

/// One line of text. The alignment is left to the canvas, which knows the font.
struct TextRun
{
    enum class Horizontal : quint8 { Left, Center, Right };
    enum class Vertical : quint8 { Baseline, Bottom, Middle, Top };

    QString text;
    QPointF origin;
    QPointF right; ///< One text height along the line, including stretching.
    QPointF up;    ///< One text height (the height of a capital letter) across the line.
    /// The width that the text is stretched to, in lengths of `right`; 0 for its natural width.
    double fitWidth = 0;
    Horizontal horizontal = Horizontal::Left;
    Vertical vertical = Vertical::Baseline;
    int entity = -1;
    quint64 order = 0; ///< The drawing order, shared with primitives.
    Box bounds;        ///< Estimated.
};

/// Geometry that is shown, hidden and styled together.
struct GeometryGroup
{
    LayerId layer = LayerId::None;
    int owners = 0; ///< Index into `Geometry::owners`.
    /// The layer of the dimension, table or leader that this is the picture of; turning that layer
    /// off hides the group as well. None for other groups.
    LayerId whole = LayerId::None;
    /// Belongs to model space while a layout is shown, so it is visible through viewports only.
    bool isThroughViewports = false;
    GeometryStyle style;
    std::vector<QPointF> vertices;
    std::vector<Primitive> primitives;
    std::vector<TextRun> texts;
    bool hasFills = false;
    bool hasMasks = false;
    Box bounds;
};

/// A ray or a construction line. It becomes as long as the drawing around it is wide.
struct EndlessLine
{
    std::size_t group = 0; ///< The group whose style it has.
    QPointF from;
    QPointF direction;
    bool bothWays = false;
    int entity = -1;
    quint64 order = 0;
};

/// An amount of geometry that is kept and drawn, or the amount that may still be added.
struct GeometryAmount
{
    qint64 vertices = 0;
    qint64 pieces = 0;    ///< Primitives and texts.
    qint64 instances = 0; ///< Placed instances of block references.
};

/// A range of entity indices, [first, last).
struct EntityRange
{
    std::size_t first = 0;
    std::size_t last = 0;
};

/// The flattened geometry of a space of a drawing or of a part of it, grouped by what decides on
/// visibility and style.
struct Geometry
{
    std::vector<GeometryGroup> groups;
    /// For each `owners` index, the layers of the block references around a group. The group is
    /// hidden when one of them is frozen.
    std::vector<std::vector<LayerId>> owners;
    PictureSwitches switches;
    /// The linetype patterns that the groups' styles refer to.
    std::shared_ptr<const LinetypePatterns> linetypes;
    /// Not drawn yet, because their length depends on the extents of all parts.
    std::vector<EndlessLine> endless;
    GeometryAmount amount;  ///< The amount in this object.
    GeometryIndex index;    ///< Empty until it is built.
    EntityRange entities;   ///< The entities that it was built from.
    bool truncated = false; ///< Some geometry was left out because there was too much.
    bool isEndless = false; ///< All of it goes on beyond the other geometry.
};

/// The parts of a drawing that its picture is made from.
struct GeometrySource
{
    const DrawingFile& file;
    const EntityTable& entities;
    const LayoutTable& layouts;
    const LinetypeTable& linetypes;
    const LayerOverrides& overrides;
    const ViewportLayers& viewports;
    const DrawOrder& order;
    LayerId layerZero;
};

using GeometryPart = std::shared_ptr<const Geometry>;

/// The amount of geometry that may still be made for one drawing. All builders of its parts share
/// it.
class GeometryRoom
{
public:
    /// Corresponds to 256 MB of points.
    static constexpr GeometryAmount kMost{16'000'000, 4'000'000, 1'000'000};

    explicit GeometryRoom(const GeometryAmount& room = kMost);

    /// Whether there is no room for more than `used`, an amount that has not been taken yet.
    bool isFull(const GeometryAmount& used) const;
    void take(const GeometryAmount& used);

private:
    std::atomic<qint64> m_vertices;
    std::atomic<qint64> m_pieces;
    std::atomic<qint64> m_instances;
};

/// Divides the entities into ranges of about `length`. No range begins with a subentity.
std::vector<EntityRange> geometryRanges(const std::vector<Entity>& entities, std::size_t length);

/// Draws the endless lines of all parts through the extents of everything else, as a part of its
/// own.
Geometry endlessLines(const std::vector<GeometryPart>& parts);

/// See the overload for `Drawing`.
Expected<Geometry> buildGeometry(const GeometrySource& source, Progress* progress);

} // namespace drawing
