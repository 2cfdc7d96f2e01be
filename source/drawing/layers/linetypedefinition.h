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
    std::vector<TextTag> tags; ///< The tags after the name, including the fonts.
};

/// The contents of a drawing's LTYPE record, independent of that drawing.
struct LinetypeDefinition
{
    QString name;
    /// The tags after the name: description, alignment and dashes. The value of a 340 group is an
    /// index into `styles`.
    std::vector<TextTag> tags;
    std::vector<LinetypeStyle> styles;
    /// Letters or shapes had to be left out because their styles could not be found.
    bool isSimplified = false;

    /// Whether it contains more than dashes and gaps, which formats without objects cannot store.
    bool hasLettersOrShapes() const { return !styles.empty(); }
};

using LinetypePointer = std::shared_ptr<const LinetypeDefinition>;

} // namespace drawing
