#pragma once

#include "geometry/geometry.h"
#include "geometry/sheet.h"
#include "layers/layer.h"

#include <QColor>

#include <vector>

/// How a group of the geometry is shown right now.
struct GroupLook
{
    bool visible = true;
    QColor color;
    drawing::LinetypePatternPointer linetype; ///< Null for unbroken lines.
    int lineweight = 0;                       ///< Hundredths of a millimetre.
};

/// What decides on the looks of groups, besides what the drawing says of each.
struct LookSource
{
    const std::vector<drawing::Layer>& layers;
    /// Where the layers' linetypes are; null: where those of the geometry are.
    const drawing::LinetypePatterns* linetypes = nullptr;
    bool isDark = true; ///< The background.
    /// What is seen through it; null: what is on the sheet, or in model space when that is shown.
    const drawing::SheetViewport* viewport = nullptr;
};

/// One look per group, by the layers' present state: off and frozen layers hide what is on them, a
/// frozen layer hides all of the block references on it. Colour 7 is white on dark, black on light.
std::vector<GroupLook> looksOf(const drawing::Geometry& geometry, const LookSource& source);
