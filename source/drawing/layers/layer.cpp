#include "layer.h"

#include <algorithm>
#include <tuple>

namespace drawing {

namespace {

// Marks a transparency value, as opposed to "by layer" and "by block".
constexpr qint64 kTransparencyByValue = 0x02000000;

auto numbers(const LayerProperties& p)
{
    return std::tie(p.off, p.frozen, p.locked, p.plotted, p.frozenInNewViewports, p.colorIndex,
        p.trueColor, p.lineweight, p.transparency);
}

/// Copies of a layer share their texts, which need not be read to be compared.
bool isSameText(const QString& a, const QString& b)
{
    return a.isSharedWith(b) || a == b;
}

} // namespace

bool operator==(const LayerProperties& a, const LayerProperties& b)
{
    return numbers(a) == numbers(b) && isSameText(a.name, b.name) &&
           isSameText(a.linetype, b.linetype) && isSameText(a.plotStyle, b.plotStyle) &&
           isSameText(a.description, b.description);
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

bool isNeverPlotted(const QString& name)
{
    return name.compare(QLatin1String("Defpoints"), Qt::CaseInsensitive) == 0;
}

int transparencyPercent(qint64 stored)
{
    if ((stored & 0xff000000) != kTransparencyByValue)
        return 0;
    const int clear = 255 - static_cast<int>(stored & 0xff);
    // The percentage is rounded because programs round alpha differently.
    return std::min((clear * 200 + 255) / 510, kMostTransparent);
}

qint64 storedTransparency(int percent)
{
    return kTransparencyByValue + 255 * (100 - percent) / 100;
}

} // namespace drawing
