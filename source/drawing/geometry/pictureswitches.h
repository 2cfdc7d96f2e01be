#pragma once

namespace drawing {

class TagReader;

/// The header variables that affect how the whole drawing is shown.
struct PictureSwitches
{
    double linetypeScale = 1;        ///< Applies to all linetypes.
    bool paperSpaceLinetypes = true; ///< Dashes in viewports are as long as on the sheet.
    bool showsLineweights = false;
    int pointMode = 0;    ///< The style in which points are drawn.
    double pointSize = 0; ///< In drawing units; 0 or less means a share of the height of the view.
    double textHeight = 0.18; ///< For dimensions and everything that takes its size from them.
};

/// Reads the tags of the HEADER section. Missing and invalid values keep their defaults.
PictureSwitches readPictureSwitches(TagReader header);

} // namespace drawing
