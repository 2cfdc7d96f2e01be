#include "entityeditsbytes.h"

#include "layerrecord.h"
#include "taglist.h"

#include <algorithm>

namespace drawing {

namespace {

constexpr quint32 kInsertion = 0;

/// Where the layer's group belongs: behind the marker of the common data, which old formats lack.
qint64 layerGroupPlace(const DrawingData& data, const Entity& entity)
{
    TagReader tags = data.tags(entity.range());
    Tag tag;
    qint64 behindType = entity.end;
    if (tags.next(tag))
        behindType = tag.end();
    while (tags.next(tag)) {
        if (tag.code == 100 && tag.trimmed() == "AcDbEntity")
            return tag.end();
    }
    return behindType;
}

/// A group in which an entity has something of its own, unless it says that the layer has it.
struct OwnGroup
{
    int code;
    bool ByLayerGroups::*kind;
    std::string_view byLayer; ///< In small letters; empty where any value is the entity's own.
};

constexpr OwnGroup kOwnGroups[] = {
    {62, &ByLayerGroups::color, "256"},
    {420, &ByLayerGroups::color, {}},
    {430, &ByLayerGroups::color, {}},
    {6, &ByLayerGroups::linetype, "bylayer"},
    {440, &ByLayerGroups::transparency, "0"},
};

bool isOwn(const Tag& tag, const ByLayerGroups& groups)
{
    const auto* const group = std::find_if(std::begin(kOwnGroups), std::end(kOwnGroups),
        [&tag](const OwnGroup& known) { return known.code == tag.code; });
    if (group == std::end(kOwnGroups) || !(groups.*group->kind))
        return false;
    const QByteArray value = tag.printed();
    return !std::equal(value.begin(), value.end(), group->byLayer.begin(), group->byLayer.end(),
        [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; });
}

} // namespace

/// Looks at the common data alone: other subclasses use the same codes for their own things. Old
/// formats have no markers, and nothing else in these groups.
void forceByLayer(DrawingData& data, size_t entity, const ByLayerGroups& groups)
{
    constexpr int kEmbeddedObject = 101;
    constexpr int kExtendedData = 1000;
    if (!groups.color && !groups.linetype && !groups.transparency)
        return;
    const Entity& place = data.index.entities[entity];
    TagReader tags = data.tags(place.range());
    bool isCommon = true;
    bool inGroup = false;
    Tag tag;
    while (tags.next(tag) && tag.code < kExtendedData && tag.code != kEmbeddedObject) {
        if (tag.code == 100)
            isCommon = tag.trimmed() == "AcDbEntity";
        if (tag.code == 100 || tag.code == 102)
            inGroup = opensGroup(tag.code, tag.trimmed());
        if (!isCommon || inGroup || !isOwn(tag, groups))
            continue;
        data.journal.replace(tag.range(), {});
        if (tag.code == 62 || tag.code == 420)
            data.dropColor(entity);
    }
}

void writeLayerName(DrawingData& data, size_t entity, const QByteArray& name)
{
    const Entity& place = data.index.entities[entity];
    const quint32 nameAt = data.index.layerNameAt[entity];
    if (nameAt == 0) {
        const TagStyle style = data.styleOf(place.range());
        data.journal.insert(layerGroupPlace(data, place), kInsertion, style.tag(8, name));
        return;
    }
    const qint64 value = place.begin + nameAt;
    // Refused within an entity that was taken out.
    data.journal.overwrite(data.valueRange(value), kInsertion, name);
}

void removeEntityBytes(DrawingData& data, size_t entity)
{
    const Entity& place = data.index.entities[entity];
    // Behind an entity of a single group its insertion stands outside of it.
    if (data.index.layerNameAt[entity] == 0)
        data.journal.removeInsertion(layerGroupPlace(data, place), kInsertion);
    data.journal.replace(place.range(), {});
}

} // namespace drawing
