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

class DrawingFile;
class EntityTable;
struct Entity;
class LayerOverrides;
class LayoutTable;
class LinetypeTable;
class ViewportLayers;
struct Progress;

/// A run of a group's vertices that belong together. A vertex of NaN begins a new part.
struct Primitive
{
    enum class Shape : quint8 { Lines, Fill, Dot, Mask };

    quint32 first = 0;
    quint32 count = 0;
    int entity = -1;      ///< Index into `Drawing::entities()` of what was drawn in model space.
    quint32 sequence = 0; ///< Order of drawing among all groups.
    Shape shape = Shape::Lines;   ///< Fills are even-odd; a mask covers what was drawn before.
    bool patternRestarts = false; ///< The linetype begins anew at each vertex.
    float linetypeScale = 1;      ///< The entity's own, and that of the blocks around it.
    float width = 0;              ///< Of lines, in drawing units; 0 = by the lineweight.
    Box bounds;
};

/// One line of text. The canvas knows the font, so alignment is left to it.
struct TextRun
{
    enum class Horizontal : quint8 { Left, Center, Right };
    enum class Vertical : quint8 { Baseline, Bottom, Middle, Top };

    QString text;
    QPointF origin;
    QPointF right;       ///< One text height along the line, stretching included.
    QPointF up;          ///< One text height (of a capital letter) across it.
    double fitWidth = 0; ///< In lengths of `right`: the text is stretched to it; 0 = as it runs.
    Horizontal horizontal = Horizontal::Left;
    Vertical vertical = Vertical::Baseline;
    int entity = -1;
    quint32 sequence = 0; ///< As that of primitives.
    Box bounds;           ///< Estimated.
};

/// Everything that is shown, hidden and styled as one.
struct GeometryGroup
{
    LayerId layer = LayerId::None;
    int owners = 0; ///< Index into `Geometry::owners`.
    /// Of the dimension, table or leader whose picture this is: off hides it, too. None elsewhere.
    LayerId whole = LayerId::None;
    /// In model space while a layout is shown: seen through its viewports alone.
    bool isThroughViewports = false;
    GeometryStyle style;
    std::vector<QPointF> vertices;
    std::vector<Primitive> primitives;
    std::vector<TextRun> texts;
    bool hasFills = false;
    bool hasMasks = false;
    Box bounds;
};

/// A ray or a construction line: as long as the drawing around it is wide.
struct EndlessLine
{
    std::size_t group = 0; ///< Whose look it has.
    QPointF from;
    QPointF direction;
    bool bothWays = false;
    int entity = -1;
    quint32 sequence = 0;
};

/// How much there is to keep and to draw, or how much more there may be.
struct GeometryAmount
{
    qint64 vertices = 0;
    qint64 pieces = 0;    ///< Primitives and texts.
    qint64 instances = 0; ///< Placed block references.
};

/// A space of a drawing, or a part of it, flattened and grouped by what decides on visibility and
/// style.
struct Geometry
{
    std::vector<GeometryGroup> groups;
    /// Layers of the block references around a group: one of them frozen hides the group.
    std::vector<std::vector<LayerId>> owners;
    PictureSwitches switches;
    std::shared_ptr<const LinetypePatterns> linetypes; ///< What the groups' styles number.
    std::vector<EndlessLine> endless; ///< Not drawn yet, for the extents of all parts count.
    GeometryAmount amount;            ///< Of what is here.
    GeometryIndex index;              ///< Empty until it is made.
    bool truncated = false;           ///< There was more than can be shown.
};

/// What of a drawing its picture is made of.
struct GeometrySource
{
    const DrawingFile& file;
    const EntityTable& entities;
    const LayoutTable& layouts;
    const LinetypeTable& linetypes;
    const LayerOverrides& overrides;
    const ViewportLayers& viewports;
    LayerId layerZero;
};

using GeometryPart = std::shared_ptr<const Geometry>;

/// The room that is left for the geometry of one drawing; those who build parts of it share it.
class GeometryRoom
{
public:
    static constexpr GeometryAmount kMost{16'000'000, 4'000'000, 1'000'000}; ///< 256 MB of points.

    explicit GeometryRoom(const GeometryAmount& room = kMost);

    /// Whether there is room for more than `used`, which has not been taken yet.
    bool isFull(const GeometryAmount& used) const;
    void take(const GeometryAmount& used);

private:
    std::atomic<qint64> m_vertices;
    std::atomic<qint64> m_pieces;
    std::atomic<qint64> m_instances;
};

/// Entities by their indices, the last one not included.
struct EntityRange
{
    std::size_t first = 0;
    std::size_t last = 0;
};

/// Cuts the entities into ranges of about `length`, none of which begins with what follows an
/// entity as its own.
std::vector<EntityRange> geometryRanges(const std::vector<Entity>& entities, std::size_t length);

/// Draws the endless lines of all parts, through what else there is, as a part of its own.
Geometry endlessLines(const std::vector<GeometryPart>& parts);

/// Flattens the space shown, as `Drawing` has it.
Expected<Geometry> buildGeometry(const GeometrySource& source, Progress* progress);

} // namespace drawing
