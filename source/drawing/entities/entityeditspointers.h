#pragma once

#include "entitytable.h"
#include "file/drawingfile.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace drawing {

/// Removes everything that points at deleted entities: objects that only they owned or that only
/// describe them, entries of lists, and single handles. It takes one pass over the file however
/// many entities are deleted.
class PointerRemoval
{
public:
    PointerRemoval(DrawingFile& file, const EntityTable& entities)
        : m_file(file),
          m_entities(entities)
    {
    }

    /// Registers an entity that is being deleted.
    void addEntity(size_t entity);
    void run();

private:
    struct Rule;
    struct Flag;
    static const Rule kRules[];
    static const Flag kFlags[];

    void addObject(const ObjectPlace* object);
    void addOwned(const ByteRange& range, bool isDictionary);
    void findDependents();
    void addDependents();
    void addEmptiedGroups();
    bool pointsAtGone(const Tag& tag) const;
    bool touches(const ByteRange& range) const;
    void clean(const ByteRange& range);
    void readGroups();
    void drop(size_t at);
    void dropFromGroup(size_t at);
    bool dropCounted(size_t at);
    void updateCount(size_t at, int dropped);
    void updateFlags(int code);
    void erase(size_t at);
    bool isErased(const Tag& tag) const;

    DrawingFile& m_file;
    const EntityTable& m_entities;
    std::unordered_set<quint64> m_gone; ///< The handles of everything that is deleted.
    std::vector<quint64> m_open;    ///< Deleted handles whose dependents still have to be found.
    std::vector<char> m_objectGoes; ///< For each object, by index, whether it is deleted.
    std::unordered_multimap<quint64, const ObjectPlace*> m_dependents;

    // State of the record or object that is being cleaned.
    std::vector<Tag> m_tags;
    /// For each tag, the index of the 102 tag that opens its group; -1 outside of groups.
    std::vector<int> m_groupHead;
};

} // namespace drawing
