#include "layer.h"

#include <algorithm>
#include <tuple>

namespace drawing {

namespace {

auto members(const LayerProperties& p)
{
    return std::tie(p.name, p.off, p.frozen, p.locked, p.plotted, p.frozenInNewViewports,
        p.colorIndex, p.trueColor, p.linetype, p.lineweight, p.transparency, p.plotStyle,
        p.description);
}

} // namespace

bool operator==(const LayerProperties& a, const LayerProperties& b)
{
    return members(a) == members(b);
}

bool operator!=(const LayerProperties& a, const LayerProperties& b)
{
    return !(a == b);
}

bool isLineweight(int hundredths)
{
    return std::find(std::begin(kLineweights), std::end(kLineweights), hundredths) !=
           std::end(kLineweights);
}

} // namespace drawing
