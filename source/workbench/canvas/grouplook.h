#pragma once

#include "geometry/geometry.h"
#include "geometry/sheet.h"
#include "layers/layer.h"

#include <QColor>

#include <vector>

/// The present look of a group of geometry.
struct GroupLook
{
    bool visible = true;
    bool counts = true; ///< For the extents; marks of dimensions do not.
    QColor color;
    drawing::LinetypePatternPointer linetype; ///< Null for unbroken lines.
    int lineweight = 0;                       ///< In hundredths of a millimetre.
};

/// What determines the looks of groups besides the drawing's own definitions.
struct LookSource
{
    const std::vector<drawing::Layer>& layers;
    /// The patterns of the layers' linetypes; null to use those of the geometry.
    const drawing::LinetypePatterns* linetypes = nullptr;
    bool isDark = true; ///< Whether the background is dark.
    /// The viewport to look through; null for what is directly on the sheet or, without a sheet, in
    /// model space.
    const drawing::SheetViewport* viewport = nullptr;
};

/// One look per group according to the present state of the layers. A layer that is off or frozen
/// hides what is on it; a frozen layer also hides the contents of the block references on it.
/// Colour 7 is white on a dark background and black on a light one.
std::vector<GroupLook> looksOf(const drawing::Geometry& geometry, const LookSource& source);
