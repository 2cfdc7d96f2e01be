#pragma once

#include "file/error.h"
#include "geometrymath.h"
#include "geometrystyle.h"
#include "linetypepattern.h"
#include "pictureswitches.h"

#include <QString>

#include <memory>
#include <vector>

namespace drawing {

class DrawingFile;
class EntityTable;
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

/// A space of a drawing, flattened and grouped by what decides on visibility and style.
struct Geometry
{
    std::vector<GeometryGroup> groups;
    /// Layers of the block references around a group: one of them frozen hides the group.
    std::vector<std::vector<LayerId>> owners;
    PictureSwitches switches;
    std::shared_ptr<const LinetypePatterns> linetypes; ///< What the groups' styles number.
    bool truncated = false;                            ///< There was more than can be shown.
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

/// Flattens the space shown, as `Drawing` has it.
Expected<Geometry> buildGeometry(const GeometrySource& source, Progress* progress);

} // namespace drawing
