#pragma once

#include <string_view>

namespace drawing {

/// The features that a version of the format can store.
struct FormatLimits
{
    bool markers = true;    ///< Handles, owners, subclass markers and objects.
    bool plotFlag = true;   ///< The plot flag of layers.
    bool lineweight = true; ///< Lineweights of layers.
    bool trueColor = true;  ///< True colours of layers.
    /// Viewports list frozen layers in 331 groups; older versions use 341.
    bool softPointers = true;
    /// Names may exceed 31 characters and may contain more than letters, digits, $, - and _.
    bool longNames = true;

    static constexpr FormatLimits of(std::string_view version)
    {
        const bool since13 = version >= "AC1012";
        const bool since2000 = version >= "AC1015";
        const bool since2004 = version >= "AC1018";
        return {since13, since2000, since2000, since2004, since2004, since2000};
    }
};

} // namespace drawing
