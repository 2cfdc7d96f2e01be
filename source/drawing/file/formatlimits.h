#pragma once

#include <string_view>

namespace drawing {

/// What a version of the format has a place for.
struct FormatLimits
{
    bool markers = true;      ///< Handles, owners, subclass markers, objects.
    bool plotFlag = true;     ///< Layers that are not plotted.
    bool lineweight = true;   ///< Of layers.
    bool trueColor = true;    ///< Of layers.
    bool softPointers = true; ///< Viewports list frozen layers in 331 groups, before in 341.
    bool longNames = true;    ///< More than 31 characters, and others than letters, digits, $ - _.

    static constexpr FormatLimits of(std::string_view version)
    {
        const bool since13 = version >= "AC1012";
        const bool since2000 = version >= "AC1015";
        const bool since2004 = version >= "AC1018";
        return {since13, since2000, since2000, since2004, since2004, since2000};
    }
};

} // namespace drawing
