#include "CmColor.h"

#include <array>
#include <cmath>

namespace {

constexpr ODCOLORREF rgb(int red, int green, int blue)
{
    return static_cast<ODCOLORREF>(red | green << 8 | blue << 16);
}

constexpr ODCOLORREF kNamed[] = {rgb(255, 255, 255), rgb(255, 0, 0), rgb(255, 255, 0),
    rgb(0, 255, 0), rgb(0, 255, 255), rgb(0, 0, 255), rgb(255, 0, 255), rgb(255, 255, 255),
    rgb(128, 128, 128), rgb(192, 192, 192)};
constexpr int kFirstGrey = 250;
constexpr int kGreys[] = {51, 91, 132, 173, 214, 255};

/// The colour of an index from 10 to 249. They form 24 hues of ten colours each: five brightnesses,
/// each fully and half saturated, as in the published table.
ODCOLORREF hueColor(int index)
{
    constexpr double kBrightness[] = {1.0, 0.65, 0.5, 0.3, 0.15};
    const int hue = index / 10 - 1;
    const double sixth = hue / 4.0;
    const double brightness = 255 * kBrightness[index % 10 / 2];
    const double lowest = index % 2 ? 0.5 : 0.0;
    const auto channel = [&](double centre) {
        double away = std::fabs(sixth - centre);
        away = std::fmin(away, 6 - away);
        const double full = std::fmin(1.0, std::fmax(0.0, 2.0 - away));
        return static_cast<int>(brightness * (lowest + (1 - lowest) * full));
    };
    return rgb(channel(0), channel(2), channel(4));
}

std::array<ODCOLORREF, 256> makeTable()
{
    std::array<ODCOLORREF, 256> table{};
    for (int i = 0; i < 10; ++i)
        table[static_cast<std::size_t>(i)] = kNamed[i];
    for (int i = 10; i < kFirstGrey; ++i)
        table[static_cast<std::size_t>(i)] = hueColor(i);
    for (int i = kFirstGrey; i < 256; ++i) {
        const int grey = kGreys[i - kFirstGrey];
        table[static_cast<std::size_t>(i)] = rgb(grey, grey, grey);
    }
    return table;
}

} // namespace

void OdCmEntityColor::setColorIndex(OdInt16 index)
{
    m_index = index;
    m_method = index == 0 ? kByBlock : index == 256 ? kByLayer : kByACI;
}

void OdCmEntityColor::setRGB(OdUInt8 red, OdUInt8 green, OdUInt8 blue)
{
    m_method = kByColor;
    m_index = 0;
    m_rgb = rgb(red, green, blue);
}

ODCOLORREF OdCmEntityColor::displayed() const
{
    return m_method == kByColor ? m_rgb : lookUpRGB(m_index);
}

ODCOLORREF OdCmEntityColor::lookUpRGB(int index)
{
    static const std::array<ODCOLORREF, 256> table = makeTable();
    return index >= 1 && index <= 255 ? table[static_cast<std::size_t>(index)] : kNamed[7];
}
