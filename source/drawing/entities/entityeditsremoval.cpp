#include "entityeditsremoval.h"

#include "entityeditsbytes.h"
#include "entityeditspointers.h"

namespace drawing {

/// The viewport with number 1 of a layout is the sheet itself.
bool EntityRemoval::isSheetViewport(const Entity& entity) const
{
    if (entity.kind != EntityKind::Viewport)
        return false;
    TagReader tags = m_data.tags(entity.range());
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 69)
            return tag.integer() == 1;
    }
    return false;
}

void EntityRemoval::choose(const std::vector<char>& isLeaving)
{
    const std::vector<Entity>& all = m_data.index.entities;
    const LayerId zero = m_data.layers.find(QStringLiteral("0"))->id;
    size_t end = 0;
    for (size_t owner = 0; owner < all.size(); owner = end) {
        end = owner + 1;
        while (end < all.size() && all[end].subEntity && all[end].block == all[owner].block)
            ++end;
        if (all[owner].removed)
            continue;
        if (!isLeaving[static_cast<size_t>(all[owner].layer)]) {
            chooseParts(owner, end, isLeaving);
        } else if (isSheetViewport(all[owner])) {
            m_moves.push_back({static_cast<int>(owner), zero});
        } else {
            for (size_t i = owner; i < end; ++i) {
                if (!all[i].removed)
                    m_entities.push_back(static_cast<int>(i));
            }
        }
    }
}

void EntityRemoval::chooseParts(size_t owner, size_t end, const std::vector<char>& isLeaving)
{
    const std::vector<Entity>& all = m_data.index.entities;
    int attributesLeft = 0;
    int endMark = -1;
    const size_t before = m_entities.size();
    for (size_t i = owner + 1; i < end; ++i) {
        const bool leaves = !all[i].removed && isLeaving[static_cast<size_t>(all[i].layer)];
        const bool isAttribute = all[i].kind == EntityKind::Attrib;
        attributesLeft += isAttribute && !all[i].removed && !leaves ? 1 : 0;
        if (all[i].kind == EntityKind::Seqend)
            endMark = static_cast<int>(i);
        if (leaves && isAttribute)
            m_entities.push_back(static_cast<int>(i));
        else if (leaves)
            m_moves.push_back({static_cast<int>(i), all[owner].layer});
    }
    if (m_entities.size() == before || attributesLeft > 0)
        return;
    m_bared.push_back(static_cast<int>(owner));
    if (endMark < 0)
        return;
    if (!m_moves.empty() && m_moves.back().entity == endMark)
        m_moves.pop_back();
    m_entities.push_back(endMark);
}

/// Group 66 tells that attributes follow.
void EntityRemoval::forgetAttributes(size_t reference)
{
    const Entity& entity = m_data.index.entities[reference];
    TagReader tags = m_data.tags(entity.range());
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == 66)
            m_data.journal.replace(tag.range(), {});
    }
}

void EntityRemoval::run()
{
    PointerRemoval pointers(m_data);
    for (const int index : m_entities) {
        const auto entity = static_cast<size_t>(index);
        pointers.addEntity(entity);
        removeEntityBytes(m_data, entity);
        m_data.changeEntity(entity, m_data.index.entities[entity].layer, true);
    }
    for (const int reference : m_bared)
        forgetAttributes(static_cast<size_t>(reference));
    pointers.run();
}

} // namespace drawing
