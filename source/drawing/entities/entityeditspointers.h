#pragma once

#include "entitytable.h"
#include "file/drawingfile.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace drawing {

/// Takes out what points at entities that go: objects that only they owned or that only tell of
/// them, entries of lists, and single handles. One pass over the file however many entities go.
class PointerRemoval
{
public:
    PointerRemoval(DrawingFile& file, const EntityTable& entities)
        : m_file(file),
          m_entities(entities)
    {
    }

    /// Notes an entity that goes.
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
    std::unordered_set<quint64> m_gone; ///< Handles.
    std::vector<quint64> m_open;        ///< Those whose dependents are still to be found.
    std::vector<char> m_objectGoes;     ///< By the objects' indices.
    std::unordered_multimap<quint64, const ObjectPlace*> m_dependents;

    // Of the record or object being cleaned.
    std::vector<Tag> m_tags;
    std::vector<int> m_groupHead; ///< For each tag its group's 102; -1 outside of groups.
};

} // namespace drawing
