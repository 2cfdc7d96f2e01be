#pragma once

#include "layers/linetypedefinition.h"

#include <QHash>

namespace drawing {

class LinetypeTable;

/// What a linetype repeats along a line, in drawing units at scale 1.
struct LinetypePattern
{
    /// A dash, a gap or a dot, and what is written where it ends.
    struct Element
    {
        double length = 0; ///< More than 0: drawn; less: left out; 0: a dot.
        QString text;      ///< Empty for plain elements, and for shapes, whose files are not read.
        double height = 0;
        double rotation = 0; ///< Degrees, from the line's direction.
        double along = 0;    ///< From where the element ends.
        double across = 0;
        bool isUpright = false; ///< The rotation is from the x axis.
    };

    std::vector<Element> elements;
    double length = 0; ///< Of one repeat; more than 0.
};

/// A pattern that draws as it is told: null for unbroken lines.
using LinetypePatternPointer = std::shared_ptr<const LinetypePattern>;

/// Null where the definition leaves nothing out.
LinetypePatternPointer patternOf(const LinetypeDefinition& definition);

/// The patterns of all linetypes of a drawing, which may change afterwards.
class LinetypePatterns
{
public:
    static constexpr int kContinuous = -1;

    LinetypePatterns() = default;
    explicit LinetypePatterns(const LinetypeTable& linetypes);

    /// By name, without regard to letter case; `kContinuous` for one that is not there as well.
    int find(const QString& name) const;
    LinetypePatternPointer at(int index) const;

private:
    std::vector<LinetypePatternPointer> m_patterns;
    QHash<QString, int> m_byName; ///< Folded.
};

} // namespace drawing
