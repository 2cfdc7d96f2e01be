#include "colorindex.h"

#include <array>

namespace drawing {

namespace {

constexpr quint32 packed(double red, double green, double blue)
{
    return static_cast<quint32>(red) << 16 | static_cast<quint32>(green) << 8 |
           static_cast<quint32>(blue);
}

/// How much of a primary of the colour circle, placed at `peak` degrees, a hue holds: 0..1.
constexpr double shareOf(double hue, double peak)
{
    double distance = hue > peak ? hue - peak : peak - hue;
    if (distance > 180)
        distance = 360 - distance;
    const double share = (120 - distance) / 60;
    return share < 0 ? 0 : share > 1 ? 1 : share;
}

/// Indices 10..249: 24 hues of 15 degrees, five values each, saturated and half saturated.
constexpr quint32 hueColor(int index)
{
    constexpr double kValues[] = {255, 165, 127, 76, 38};
    const double hue = (index / 10 - 1) * 15;
    const double value = kValues[index % 10 / 2];
    const double base = index % 2 == 0 ? 0 : 0.5;
    const auto channel = [&](double peak) {
        return value * (base + (1 - base) * shareOf(hue, peak));
    };
    return packed(channel(0), channel(120), channel(240));
}

constexpr std::array<quint32, 256> makeTable()
{
    constexpr quint32 kNamed[] = {0xffffff, 0xff0000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff,
        0xff00ff, 0xffffff, 0x808080, 0xc0c0c0};
    constexpr quint32 kGreys[] = {0x333333, 0x5b5b5b, 0x848484, 0xadadad, 0xd6d6d6, 0xffffff};
    std::array<quint32, 256> table{};
    for (int i = 0; i < 10; ++i)
        table[static_cast<size_t>(i)] = kNamed[i];
    for (int i = 10; i < 250; ++i)
        table[static_cast<size_t>(i)] = hueColor(i);
    for (int i = 250; i < 256; ++i)
        table[static_cast<size_t>(i)] = kGreys[i - 250];
    return table;
}

constexpr std::array<quint32, 256> kTable = makeTable();

} // namespace

quint32 colorOfIndex(int index)
{
    return index > 0 && index < 256 ? kTable[static_cast<size_t>(index)] : 0xffffff;
}

} // namespace drawing
