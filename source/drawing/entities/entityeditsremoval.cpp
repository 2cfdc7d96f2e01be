#include "entityeditsremoval.h"

#include "entityeditsbytes.h"
#include "entityeditspointers.h"
#include "file/owntags.h"
#include "viewports.h"

namespace drawing {

void EntityRemoval::choose(const std::vector<char>& isLeaving, LayerId zero)
{
    const std::vector<Entity>& all = m_entities.all();
    size_t end = 0;
    for (size_t owner = 0; owner < all.size(); owner = end) {
        end = owner + 1;
        while (end < all.size() && all[end].subEntity && all[end].block == all[owner].block)
            ++end;
        if (all[owner].removed)
            continue;
        if (!isLeaving[static_cast<size_t>(all[owner].layer)]) {
            chooseParts(owner, end, isLeaving);
        } else if (all[owner].kind == EntityKind::Viewport &&
                   isSheetsOwn(m_file.tags(all[owner].range()))) {
            m_moves.push_back({static_cast<int>(owner), zero});
        } else {
            for (size_t i = owner; i < end; ++i) {
                if (!all[i].removed)
                    m_chosen.push_back(static_cast<int>(i));
            }
        }
    }
}

void EntityRemoval::chooseParts(size_t owner, size_t end, const std::vector<char>& isLeaving)
{
    const std::vector<Entity>& all = m_entities.all();
    int attributesLeft = 0;
    int endMark = -1;
    const size_t before = m_chosen.size();
    for (size_t i = owner + 1; i < end; ++i) {
        const bool leaves = !all[i].removed && isLeaving[static_cast<size_t>(all[i].layer)];
        const bool isAttribute = all[i].kind == EntityKind::Attrib;
        attributesLeft += isAttribute && !all[i].removed && !leaves ? 1 : 0;
        if (all[i].kind == EntityKind::Seqend)
            endMark = static_cast<int>(i);
        if (leaves && isAttribute)
            m_chosen.push_back(static_cast<int>(i));
        else if (leaves)
            m_moves.push_back({static_cast<int>(i), all[owner].layer});
    }
    if (m_chosen.size() == before || attributesLeft > 0)
        return;
    m_bared.push_back(static_cast<int>(owner));
    if (endMark < 0)
        return;
    if (!m_moves.empty() && m_moves.back().entity == endMark)
        m_moves.pop_back();
    m_chosen.push_back(endMark);
}

/// Clears group 66, which says that attributes follow.
void EntityRemoval::forgetAttributes(size_t reference)
{
    OwnTags tags(m_file.tags(m_entities[reference].range()));
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == group::kHasAttributes)
            m_file.journal().replace(tag.range(), {});
    }
}

void EntityRemoval::run()
{
    PointerRemoval pointers(m_file, m_entities);
    for (const int index : m_chosen) {
        const auto entity = static_cast<size_t>(index);
        pointers.addEntity(entity);
        removeEntityBytes(m_file, m_entities, entity);
        m_entities.remove(entity);
    }
    for (const int reference : m_bared)
        forgetAttributes(static_cast<size_t>(reference));
    pointers.run();
}

} // namespace drawing
