#pragma once

namespace drawing {

class TagReader;

/// What the header of a drawing says of how all of it is shown.
struct PictureSwitches
{
    double linetypeScale = 1;        ///< Of all linetypes.
    bool paperSpaceLinetypes = true; ///< Dashes are as long in viewports as on their sheet.
    bool showsLineweights = false;
    int pointMode = 0;        ///< What points are drawn as.
    double pointSize = 0;     ///< Drawing units; 0 or less: a share of the view's height.
    double textHeight = 0.18; ///< Of dimensions and of what takes its size from them.
};

/// From the tags of the HEADER section; what is missing or no number keeps its default.
PictureSwitches readPictureSwitches(TagReader header);

} // namespace drawing
