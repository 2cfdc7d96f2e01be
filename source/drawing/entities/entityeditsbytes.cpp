#include "entityeditsbytes.h"

#include "insertionorder.h"
#include "owntags.h"

#include <algorithm>

namespace drawing {

namespace {

constexpr std::string_view kCommonData = "AcDbEntity";

/// Where the layer's group belongs: behind the marker of the common data, which old formats lack.
qint64 layerGroupPlace(const DrawingFile& file, const Entity& entity)
{
    TagReader tags = file.tags(entity.range());
    Tag tag;
    qint64 behindType = entity.end;
    if (tags.next(tag))
        behindType = tag.end();
    while (tags.next(tag)) {
        if (tag.code == group::kSubclass && tag.trimmed() == kCommonData)
            return tag.end();
    }
    return behindType;
}

/// A group in which an entity has something of its own, unless it says that the layer has it.
struct OwnGroup
{
    int code;
    bool ByLayerGroups::*kind;
    bool isOwn(const Tag& tag) const;
};

constexpr OwnGroup kOwnGroups[] = {
    {group::kColor, &ByLayerGroups::color},
    {group::kTrueColor, &ByLayerGroups::color},
    {group::kColorName, &ByLayerGroups::color},
    {group::kLinetype, &ByLayerGroups::linetype},
    {group::kTransparency, &ByLayerGroups::transparency},
    {group::kLineweight, &ByLayerGroups::lineweight},
};

bool OwnGroup::isOwn(const Tag& tag) const
{
    constexpr qint64 kColorByLayer = 256;
    constexpr qint64 kLineweightByLayer = -1;
    constexpr std::string_view kByLayer = "bylayer";
    const std::string_view text = tag.trimmed();
    switch (code) {
    case group::kColor:
        return tag.integer() != kColorByLayer;
    case group::kLineweight:
        return tag.integer() != kLineweightByLayer;
    case group::kTransparency:
        return tag.integer() != 0;
    case group::kLinetype:
        return !std::equal(text.begin(), text.end(), kByLayer.begin(), kByLayer.end(),
            [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; });
    default:
        return true;
    }
}

bool isOwn(const Tag& tag, const ByLayerGroups& groups)
{
    const auto* const found = std::find_if(std::begin(kOwnGroups), std::end(kOwnGroups),
        [&tag](const OwnGroup& known) { return known.code == tag.code; });
    return found != std::end(kOwnGroups) && groups.*found->kind && found->isOwn(tag);
}

} // namespace

/// Looks at the common data alone: other subclasses use the same codes for their own things. Old
/// formats have no markers, and nothing else in these groups.
void forceByLayer(
    DrawingFile& file, EntityTable& entities, size_t entity, const ByLayerGroups& groups)
{
    if (!groups.color && !groups.linetype && !groups.transparency && !groups.lineweight)
        return;
    OwnTags tags(file.tags(entities[entity].range()));
    Tag tag;
    while (tags.next(tag)) {
        const std::string_view subclass = tags.place().subclass();
        if ((!subclass.empty() && subclass != kCommonData) || !isOwn(tag, groups))
            continue;
        file.journal().replace(tag.range(), {});
        if (tag.code == group::kColor || tag.code == group::kTrueColor)
            entities.dropColor(entity);
    }
}

void writeLayerName(
    DrawingFile& file, const EntityTable& entities, size_t entity, const QByteArray& name)
{
    const Entity& place = entities[entity];
    const qint64 value = entities.layerName(entity);
    // Refused within an entity that was taken out.
    if (value >= 0)
        file.journal().overwrite(file.valueRange(value), kNewLayerName, name);
    else
        file.journal().insert(layerGroupPlace(file, place), kNewLayerName,
            file.styleOf(place.range()).tag(group::kLayer, name));
}

void removeEntityBytes(DrawingFile& file, const EntityTable& entities, size_t entity)
{
    const Entity& place = entities[entity];
    // Behind an entity of a single group its insertion stands outside of it.
    if (entities.layerName(entity) < 0)
        file.journal().removeInsertion(layerGroupPlace(file, place), kNewLayerName);
    file.journal().replace(place.range(), {});
}

} // namespace drawing
