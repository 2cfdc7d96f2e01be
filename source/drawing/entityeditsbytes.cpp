#include "entityeditsbytes.h"

#include "tagtext.h"

namespace drawing {

namespace {

constexpr quint32 kInsertion = 0;

/// Where the layer's group belongs: behind the marker of the common data, which old formats lack.
qint64 layerGroupPlace(const DrawingData& data, const Entity& entity)
{
    TagReader tags = data.tags({entity.begin, entity.end});
    Tag tag;
    qint64 behindType = entity.end;
    if (tags.next(tag))
        behindType = tag.end;
    while (tags.next(tag)) {
        if (tag.code == 100 && tag.trimmed() == "AcDbEntity")
            return tag.end;
    }
    return behindType;
}

} // namespace

void writeLayerName(DrawingData& data, size_t entity, const QByteArray& name)
{
    const Entity& place = data.index.entities[entity];
    const quint32 nameAt = data.index.layerNameAt[entity];
    if (nameAt == 0) {
        const TagStyle style = TagStyle::of(data.view({place.begin, place.end}));
        data.journal.insert(layerGroupPlace(data, place), kInsertion, style.tag(8, name));
        return;
    }
    const qint64 value = place.begin + nameAt;
    const auto length = static_cast<qint64>(data.lineAt(value).size());
    // Refused within an entity that was taken out.
    if (length == 0)
        data.journal.insert(value, kInsertion, name);
    else
        data.journal.replace(value, value + length, name);
}

void removeEntityBytes(DrawingData& data, size_t entity)
{
    const Entity& place = data.index.entities[entity];
    // Behind an entity of a single group its insertion stands outside of it.
    if (data.index.layerNameAt[entity] == 0)
        data.journal.removeInsertion(layerGroupPlace(data, place), kInsertion);
    data.journal.replace(place.begin, place.end, {});
}

} // namespace drawing
