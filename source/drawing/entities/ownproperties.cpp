#include "ownproperties.h"

#include "file/groupcode.h"

#include <algorithm>
#include <cctype>

namespace drawing {

namespace {

OwnProperties ownWhen(bool isOwn, OwnProperty property)
{
    return isOwn ? property : OwnProperties();
}

} // namespace

OwnProperties ownPropertiesIn(const Tag& tag)
{
    constexpr qint64 kColorByLayer = 256;
    constexpr qint64 kLineweightByLayer = -1;
    constexpr std::string_view kByLayer = "bylayer";
    const std::string_view text = tag.trimmed();
    switch (tag.code) {
    case group::kColor:
        return ownWhen(tag.integer() != kColorByLayer, OwnProperty::Color);
    case group::kTrueColor:
    case group::kColorName:
        return OwnProperty::Color;
    case group::kLinetype:
        return ownWhen(
            !std::equal(text.begin(), text.end(), kByLayer.begin(), kByLayer.end(),
                [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; }),
            OwnProperty::Linetype);
    case group::kLineweight:
        return ownWhen(tag.integer() != kLineweightByLayer, OwnProperty::Lineweight);
    case group::kTransparency:
        return ownWhen(tag.integer() != 0, OwnProperty::Transparency);
    default:
        return {};
    }
}

} // namespace drawing
