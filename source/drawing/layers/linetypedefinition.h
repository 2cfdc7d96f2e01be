#pragma once

#include "file/texttag.h"

#include <QString>

#include <memory>
#include <vector>

namespace drawing {

/// A text style or shape file that a linetype takes its letters or shapes from.
struct LinetypeStyle
{
    QString name;              ///< Empty for a shape file.
    std::vector<TextTag> tags; ///< What follows the name, fonts included.
};

/// What a drawing's LTYPE record says, apart from its place in that drawing.
struct LinetypeDefinition
{
    QString name;
    /// What follows the name: description, alignment, dashes. The value of a 340 group is an index
    /// into `styles`.
    std::vector<TextTag> tags;
    std::vector<LinetypeStyle> styles;
    /// Letters or shapes had to be left out, as their styles are nowhere to be found.
    bool isSimplified = false;

    /// Whether there is more in it than dashes and gaps, which formats without objects lack.
    bool hasLettersOrShapes() const { return !styles.empty(); }
};

using LinetypePointer = std::shared_ptr<const LinetypeDefinition>;

} // namespace drawing
