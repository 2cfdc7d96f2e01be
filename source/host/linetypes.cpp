#include "linetypes.h"

#include <algorithm>

namespace host {

namespace {

std::vector<LineType>& offered()
{
    static std::vector<LineType> all{{L"ByLayer", {}}, {L"ByBlock", {}}, {L"Continuous", {}}};
    return all;
}

} // namespace

void setLineTypes(std::vector<LineType> types)
{
    std::vector<LineType> all;
    const auto addMissing = [&](LineType type) {
        const bool isThere = std::any_of(all.begin(), all.end(),
            [&](const LineType& other) { return other.name.iCompare(type.name) == 0; });
        if (!isThere)
            all.push_back(std::move(type));
    };
    addMissing({L"ByLayer", {}});
    addMissing({L"ByBlock", {}});
    for (LineType& type : types)
        addMissing(std::move(type));
    addMissing({L"Continuous", {}});
    offered() = std::move(all);
}

const std::vector<LineType>& lineTypes()
{
    return offered();
}

} // namespace host
