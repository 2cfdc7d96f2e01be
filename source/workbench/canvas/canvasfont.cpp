#include "canvasfont.h"

#include <QFontMetricsF>

#include <array>
#include <atomic>
#include <mutex>

namespace {

constexpr int kMeasuredPixels = 64;

double measured(QChar character)
{
    static std::mutex measuring;
    const std::lock_guard<std::mutex> guard(measuring);
    static const QFontMetricsF metrics(canvasFont(kMeasuredPixels));
    static const double capHeight = std::max(1.0, metrics.capHeight());
    return metrics.horizontalAdvance(character) / capHeight;
}

} // namespace

QFont canvasFont(int pixelSize)
{
    QFont font;
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double canvasCharacterWidth(QChar character)
{
    // Indexed by character code. 0 means not measured yet; other values are the width plus one.
    static std::array<std::atomic<float>, 0x10000> known{};
    std::atomic<float>& width = known[character.unicode()];
    if (width.load(std::memory_order_relaxed) == 0)
        width.store(static_cast<float>(measured(character)) + 1, std::memory_order_relaxed);
    return width.load(std::memory_order_relaxed) - 1;
}
