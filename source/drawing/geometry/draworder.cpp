#include "draworder.h"

#include "entities/entitytable.h"
#include "file/drawingfile.h"
#include "file/owntags.h"
#include "geometry.h"

#include <vector>

namespace drawing {

namespace {

struct Placing
{
    quint64 entity;
    quint64 place; ///< The handle of the entity whose place it takes.
};

/// What a table says, pair by pair.
void readTable(const TagReader& table, std::vector<Placing>& placings)
{
    constexpr int kEntity = 331;
    constexpr int kPlace = 5;
    OwnTags tags(table);
    Tag tag;
    quint64 entity = 0;
    while (tags.next(tag)) {
        if (tag.code == kEntity)
            entity = tag.handle();
        else if (tag.code == kPlace && entity != 0)
            placings.push_back({std::exchange(entity, 0), tag.handle()});
    }
}

std::vector<Placing> readTables(const DrawingFile& file)
{
    std::vector<Placing> placings;
    for (const ObjectPlace& object : file.index().objects) {
        TagReader tags = file.tags(object.range);
        Tag type;
        if (tags.next(type) && type.trimmed() == "SORTENTSTABLE")
            readTable(file.tags(object.range), placings);
    }
    return placings;
}

} // namespace

std::size_t DrawOrder::rank(std::size_t entity, const GeometrySource& source) const
{
    std::call_once(m_isRead, [&] { read(source); });
    if (m_ranks.isEmpty())
        return entity;
    const int index = static_cast<int>(entity);
    return static_cast<std::size_t>(m_ranks.value(index, index));
}

void DrawOrder::read(const GeometrySource& source) const
{
    const std::vector<Placing> placings = readTables(source.file);
    if (placings.empty())
        return;
    QHash<quint64, int> indices; // By handle; -1 for those not found.
    for (const Placing& placing : placings) {
        indices.insert(placing.entity, -1);
        indices.insert(placing.place, -1);
    }
    const auto& entities = source.entities.all();
    for (std::size_t i = 0; i < entities.size(); ++i) {
        if (entities[i].subEntity)
            continue;
        const auto found = indices.find(ownHandle(source.file.tags(entities[i].range())));
        if (found != indices.end())
            *found = static_cast<int>(i);
    }
    for (const Placing& placing : placings) {
        const int entity = indices.value(placing.entity);
        const int place = indices.value(placing.place);
        if (entity >= 0 && place >= 0 && entity != place)
            m_ranks.insert(entity, place);
    }
}

} // namespace drawing
