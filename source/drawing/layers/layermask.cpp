#include "layermask.h"

namespace drawing {

namespace {

/// The property that a bit of the mask stands for.
struct MaskRow
{
    int bit;
    void (*copy)(LayerProperties& to, const LayerProperties& from);
};

constexpr MaskRow kRows[] = {
    {kStateOnOff, [](auto& to, auto& from) { to.off = from.off; }},
    {kStateFreeze, [](auto& to, auto& from) { to.frozen = from.frozen; }},
    {kStateLock, [](auto& to, auto& from) { to.locked = from.locked; }},
    {kStatePlot, [](auto& to, auto& from) { to.plotted = from.plotted; }},
    {kStateNewViewportFreeze,
        [](auto& to, auto& from) { to.frozenInNewViewports = from.frozenInNewViewports; }},
    {kStateColor,
        [](auto& to, auto& from) {
            to.colorIndex = from.colorIndex;
            to.trueColor = from.trueColor;
        }},
    {kStateLinetype, [](auto& to, auto& from) { to.linetype = from.linetype; }},
    {kStateLineweight, [](auto& to, auto& from) { to.lineweight = from.lineweight; }},
    {kStatePlotStyle, [](auto& to, auto& from) { to.plotStyle = from.plotStyle; }},
    {kStateTransparency, [](auto& to, auto& from) { to.transparency = from.transparency; }},
};

} // namespace

LayerProperties maskedProperties(const LayerProperties& now, const LayerProperties& saved, int mask)
{
    LayerProperties after = now;
    for (const MaskRow& row : kRows) {
        if (mask & row.bit)
            row.copy(after, saved);
    }
    return after;
}

} // namespace drawing
