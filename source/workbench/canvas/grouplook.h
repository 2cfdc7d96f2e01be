#pragma once

#include "geometry.h"
#include "layer.h"

#include <QColor>

#include <vector>

/// How a group of the geometry is shown right now.
struct GroupLook
{
    bool visible = true;
    QColor color;
};

/// One look per group, by the layers' present state: off and frozen layers hide what is on them, a
/// frozen layer hides all of the block references on it. Colour 7 is white on dark, black on light.
std::vector<GroupLook> looksOf(const drawing::Geometry& geometry,
    const std::vector<drawing::Layer>& layers, bool darkBackground);
