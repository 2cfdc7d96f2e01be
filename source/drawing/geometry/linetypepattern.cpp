#include "linetypepattern.h"

#include "file/symbolname.h"
#include "layers/linetypetable.h"

#include <algorithm>
#include <cmath>

namespace drawing {

namespace {

// Groups of LTYPE records. All but the first follow the element that they describe.
enum Code { Dash = 49, Kind = 74, Height = 46, Rotation = 50, Along = 44, Across = 45, Text = 9 };
constexpr int kUprightKind = 1;

double numberOf(const TextTag& tag)
{
    const double number = tag.value.trimmed().toDouble();
    return std::isfinite(number) ? number : 0;
}

void take(LinetypePattern::Element& element, const TextTag& tag)
{
    switch (tag.code) {
    case Kind:
        element.isUpright = tag.value.toInt() & kUprightKind;
        return;
    case Height:
        element.height = numberOf(tag);
        return;
    case Rotation:
        element.rotation = numberOf(tag);
        return;
    case Along:
        element.along = numberOf(tag);
        return;
    case Across:
        element.across = numberOf(tag);
        return;
    case Text:
        element.text = tag.value;
        return;
    default:
        return;
    }
}

} // namespace

LinetypePatternPointer patternOf(const LinetypeDefinition& definition)
{
    auto pattern = std::make_shared<LinetypePattern>();
    for (const TextTag& tag : definition.tags) {
        if (tag.code == Dash)
            pattern->elements.emplace_back().length = numberOf(tag);
        else if (!pattern->elements.empty())
            take(pattern->elements.back(), tag);
    }
    // The total length in the record is not reliable.
    for (const LinetypePattern::Element& element : pattern->elements)
        pattern->length += std::abs(element.length);
    const bool hasGap = std::any_of(pattern->elements.begin(), pattern->elements.end(),
        [](const LinetypePattern::Element& element) { return element.length < 0; });
    const bool isUsable = hasGap && std::isfinite(pattern->length);
    return isUsable ? pattern : nullptr;
}

LinetypePatterns::LinetypePatterns(const LinetypeTable& linetypes)
{
    for (const QString& name : linetypes.names()) {
        const LinetypePointer definition = linetypes.find(name);
        LinetypePatternPointer pattern = definition ? patternOf(*definition) : nullptr;
        if (!pattern)
            continue;
        m_byName.insert(foldedName(name.trimmed()), static_cast<int>(m_patterns.size()));
        m_patterns.push_back(std::move(pattern));
    }
}

int LinetypePatterns::find(const QString& name) const
{
    return m_byName.value(foldedName(name.trimmed()), kContinuous);
}

LinetypePatternPointer LinetypePatterns::at(int index) const
{
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < m_patterns.size() ? m_patterns[at] : nullptr;
}

} // namespace drawing
