#pragma once

#include "layers/linetypedefinition.h"

#include <QHash>

namespace drawing {

class LinetypeTable;

/// The elements that a linetype repeats along a line, in drawing units at scale 1.
struct LinetypePattern
{
    /// A dash, a gap or a dot, and the text at its end.
    struct Element
    {
        double length = 0; ///< Positive for a dash, negative for a gap, 0 for a dot.
        /// Empty for plain elements and for shapes, because shape files are not read.
        QString text;
        double height = 0;
        double rotation = 0; ///< In degrees, relative to the line.
        double along = 0;    ///< Offset along the line from the end of the element.
        double across = 0;
        bool isUpright = false; ///< The rotation is relative to the x axis instead.
    };

    std::vector<Element> elements;
    double length = 0; ///< The length of one repetition; more than 0.
};

/// A shared, unchanging pattern; null for unbroken lines.
using LinetypePatternPointer = std::shared_ptr<const LinetypePattern>;

/// The pattern of a linetype definition; null when it has no gaps.
LinetypePatternPointer patternOf(const LinetypeDefinition& definition);

/// The patterns of all linetypes of a drawing. Later changes of the drawing do not affect them.
class LinetypePatterns
{
public:
    static constexpr int kContinuous = -1;

    LinetypePatterns() = default;
    explicit LinetypePatterns(const LinetypeTable& linetypes);

    /// The index of the linetype of this name, ignoring letter case; `kContinuous` for an unknown
    /// name.
    int find(const QString& name) const;
    LinetypePatternPointer at(int index) const;

private:
    std::vector<LinetypePatternPointer> m_patterns;
    QHash<QString, int> m_byName; ///< The keys are folded names.
};

} // namespace drawing
