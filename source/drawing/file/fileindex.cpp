#include "fileindex.h"

#include <algorithm>

namespace drawing {

namespace {

constexpr HeaderVariableName kVariables[] = {{"$ACADVER", 1}, {"$DWGCODEPAGE", 3}, {"$CLAYER", 8},
    {"$HANDSEED", 5}, {"$PSTYLEMODE", 290}, {"$TILEMODE", 70}};
static_assert(std::size(kVariables) == static_cast<size_t>(HeaderVariable::Count));

constexpr std::string_view kTables[] = {"LTYPE", "LAYER", "STYLE", "APPID", "BLOCK_RECORD"};
static_assert(std::size(kTables) == static_cast<size_t>(TableKind::Other));

constexpr std::pair<std::string_view, ObjectKind> kObjects[] = {
    {"DICTIONARY", ObjectKind::Dictionary},
    {"ACDBDICTIONARYWDFLT", ObjectKind::Dictionary},
    {"XRECORD", ObjectKind::XRecord},
    {"LAYER_FILTER", ObjectKind::LayerList},
    {"LAYER_INDEX", ObjectKind::LayerList},
    {"SECTIONSETTINGS", ObjectKind::Section},
    {"LAYOUT", ObjectKind::Layout},
    {"ACAD_PROXY_OBJECT", ObjectKind::Proxy},
};

} // namespace

ObjectKind objectKind(std::string_view name)
{
    for (const auto& [known, kind] : kObjects) {
        if (known == name)
            return kind;
    }
    return ObjectKind::Other;
}

TableKind tableKind(std::string_view name)
{
    const auto* known = std::find(std::begin(kTables), std::end(kTables), name);
    return static_cast<TableKind>(known - std::begin(kTables));
}

HeaderVariable headerVariable(std::string_view name)
{
    const auto* known = std::find_if(std::begin(kVariables), std::end(kVariables),
        [name](const HeaderVariableName& variable) { return variable.name == name; });
    return static_cast<HeaderVariable>(known - std::begin(kVariables));
}

const HeaderVariableName& nameOf(HeaderVariable which)
{
    return kVariables[static_cast<size_t>(which)];
}

} // namespace drawing
