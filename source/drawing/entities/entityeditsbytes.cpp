#include "entityeditsbytes.h"

#include "file/insertionorder.h"
#include "file/owntags.h"

namespace drawing {

namespace {

/// Where the group of the layer belongs: after the marker of the common data, which old formats
/// lack.
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

} // namespace

void forceByLayer(DrawingFile& file, EntityTable& entities, size_t entity, OwnProperties properties)
{
    if (!(entities[entity].own & properties))
        return;
    OwnTags tags(file.tags(entities[entity].range()));
    Tag tag;
    while (tags.next(tag)) {
        const std::string_view subclass = tags.place().subclass();
        if ((subclass.empty() || subclass == kCommonData) && (ownPropertiesIn(tag) & properties))
            file.journal().replace(tag.range(), {});
    }
    entities.dropOwn(entity, properties);
}

void writeLayerName(
    DrawingFile& file, const EntityTable& entities, size_t entity, const QByteArray& name)
{
    file.pace().step();
    const Entity& place = entities[entity];
    const qint64 value = entities.layerName(entity);
    // The journal refuses this inside an entity that was removed.
    if (value >= 0)
        file.journal().overwrite(file.valueRange(value), kNewLayerName, name);
    else
        file.journal().insert(layerGroupPlace(file, place), kNewLayerName,
            file.styleOf(place.range()).tag(group::kLayer, name));
}

void removeEntityBytes(DrawingFile& file, const EntityTable& entities, size_t entity)
{
    file.pace().step();
    const Entity& place = entities[entity];
    // For an entity that consists of a single group, this insertion is outside of the removed
    // range.
    if (entities.layerName(entity) < 0)
        file.journal().removeInsertion(layerGroupPlace(file, place), kNewLayerName);
    file.journal().replace(place.range(), {});
}

} // namespace drawing
