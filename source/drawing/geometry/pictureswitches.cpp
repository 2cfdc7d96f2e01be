#include "pictureswitches.h"

#include "file/tagreader.h"

#include <cmath>

namespace drawing {

namespace {

constexpr int kVariableName = 9;

void take(PictureSwitches& switches, double& factor, std::string_view name, const Tag& value)
{
    const double number = value.real();
    if (!std::isfinite(number))
        return;
    if (name == "$LTSCALE" && number > 0)
        switches.linetypeScale = number;
    else if (name == "$PSLTSCALE")
        switches.paperSpaceLinetypes = value.integer() != 0;
    else if (name == "$LWDISPLAY")
        switches.showsLineweights = value.integer() != 0;
    else if (name == "$PDMODE")
        switches.pointMode = static_cast<int>(value.integer());
    else if (name == "$PDSIZE")
        switches.pointSize = number;
    else if (name == "$DIMTXT" && number > 0)
        switches.textHeight = number;
    else if (name == "$DIMSCALE" && number > 0)
        factor = number;
}

} // namespace

PictureSwitches readPictureSwitches(TagReader header)
{
    PictureSwitches switches;
    double factor = 1;
    std::string_view name;
    Tag tag;
    while (header.next(tag)) {
        if (tag.code == kVariableName)
            name = tag.trimmed();
        else if (!name.empty())
            take(switches, factor, std::exchange(name, {}), tag);
    }
    switches.textHeight *= factor;
    return switches;
}

} // namespace drawing
