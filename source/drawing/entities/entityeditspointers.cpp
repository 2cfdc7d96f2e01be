#include "entityeditspointers.h"

#include "file/owntags.h"

#include <algorithm>

namespace drawing {

namespace {

bool isType(const std::vector<Tag>& tags, std::string_view type)
{
    return !tags.empty() && tags.front().trimmed() == type;
}

} // namespace

/// The pointers that are removed with their tag, and the adjacent tag that is removed with them.
/// All other pointers become null handles.
struct PointerRemoval::Rule
{
    enum With { Alone, TagBefore, TagBehind };

    std::string_view type;
    int code;
    With with;
};

const PointerRemoval::Rule PointerRemoval::kRules[] = {
    {"DICTIONARY", group::kSoftOwner, Rule::TagBefore},
    {"DICTIONARY", group::kHardOwner, Rule::TagBefore},
    {"ACDBDICTIONARYWDFLT", group::kSoftOwner, Rule::TagBefore},
    {"ACDBDICTIONARYWDFLT", group::kHardOwner, Rule::TagBefore},
    {"GROUP", group::kHardPointer, Rule::Alone},
    {"IDBUFFER", group::kSoftPointer, Rule::Alone},
    {"SORTENTSTABLE", 331, Rule::TagBehind},
    {"VIEWPORT", group::kHardPointer, Rule::Alone},
    {"LEADER", group::kHardPointer, Rule::Alone},
};

/// A tag that must change when a pointer of the same entity is removed.
struct PointerRemoval::Flag
{
    std::string_view type;
    int pointer;
    int code;
    qint64 kept; ///< The bits kept from the old value.
    qint64 set;  ///< The bits that are set in addition.
};

const PointerRemoval::Flag PointerRemoval::kFlags[] = {
    // The flag for clipping by an entity.
    {"VIEWPORT", group::kHardPointer, 90, ~qint64(0x10000), 0},
    {"LEADER", group::kHardPointer, 73, 0, 3}, // The kind of annotation; 3 is none.
    {"HATCH", group::kSoftPointer, 71, 0, 0},  // The flag for following its boundary.
};

void PointerRemoval::addEntity(size_t entity)
{
    const ByteRange place = m_entities[entity].range();
    const quint64 handle = ownHandle(m_file.tags(place));
    if (handle == 0)
        return;
    m_gone.insert(handle);
    m_open.push_back(handle);
    addOwned(place, false);
}

void PointerRemoval::addOwned(const ByteRange& range, bool isDictionary)
{
    TagReader tags = m_file.tags(range);
    Tag tag;
    while (tags.next(tag)) {
        if (tag.code == group::kHardOwner || (tag.code == group::kSoftOwner && isDictionary))
            addObject(m_file.objects().find(tag.handle()));
    }
}

void PointerRemoval::addObject(const ObjectPlace* object)
{
    if (!object || !m_gone.insert(object->handle).second)
        return;
    m_open.push_back(object->handle);
    m_objectGoes.resize(m_file.index().objects.size());
    m_objectGoes[static_cast<size_t>(object - m_file.index().objects.data())] = true;
}

/// Finds the objects that are deleted together with another one: those that it owns, and those that
/// tie a dimension to what it measures.
void PointerRemoval::findDependents()
{
    for (const ObjectPlace& object : m_file.index().objects) {
        OwnTags tags(m_file.tags(object.range));
        Tag tag;
        const bool isTie = tags.next(tag) && tag.trimmed() == "DIMASSOC";
        while (tags.next(tag) && (isTie || tag.code != group::kSubclass)) {
            const bool ties = isTie && (tag.code == 331 || tag.code == 332);
            if (tag.code == group::kSoftPointer || ties)
                m_dependents.emplace(tag.handle(), &object);
        }
    }
}

void PointerRemoval::addDependents()
{
    while (!m_open.empty()) {
        const quint64 handle = m_open.back();
        m_open.pop_back();
        if (const ObjectPlace* object = m_file.objects().find(handle))
            addOwned(object->range, object->kind == ObjectKind::Dictionary);
        const auto [from, to] = m_dependents.equal_range(handle);
        for (auto dependent = from; dependent != to; ++dependent)
            addObject(dependent->second);
    }
}

/// A group that loses all its members is deleted, too.
void PointerRemoval::addEmptiedGroups()
{
    for (const ObjectPlace& object : m_file.index().objects) {
        TagReader type = m_file.tags(object.range);
        Tag tag;
        if (!type.next(tag) || tag.trimmed() != "GROUP")
            continue;
        const TagList now = m_file.current(object.range);
        int members = 0;
        int gone = 0;
        for (int at = 0; at < now.size(); ++at) {
            if (now.code(at) != group::kHardPointer)
                continue;
            ++members;
            gone += m_gone.count(now.handle(at)) != 0 ? 1 : 0;
        }
        if (gone > 0 && gone == members)
            addObject(&object);
    }
}

void PointerRemoval::run()
{
    if (m_gone.empty())
        return;
    m_objectGoes.resize(m_file.index().objects.size());
    findDependents();
    addDependents();
    addEmptiedGroups();
    addDependents();
    for (const Entity& entity : m_entities.all()) {
        if (!entity.removed)
            clean(entity.range());
    }
    for (const TablePlace& table : m_file.index().tables) {
        for (const ByteRange& record : table.records)
            clean(record);
    }
    for (size_t i = 0; i < m_objectGoes.size(); ++i) {
        const ObjectPlace& object = m_file.index().objects[i];
        if (m_objectGoes[i])
            m_file.journal().replace(object.range, {});
        else
            clean(object.range);
    }
}

bool PointerRemoval::pointsAtGone(const Tag& tag) const
{
    return group::isPointer(tag.code) && m_gone.count(tag.handle()) != 0;
}

bool PointerRemoval::touches(const ByteRange& range) const
{
    TagReader tags = m_file.tags(range);
    Tag tag;
    while (tags.next(tag)) {
        if (pointsAtGone(tag))
            return true;
    }
    return false;
}

void PointerRemoval::clean(const ByteRange& range)
{
    if (!touches(range))
        return;
    m_tags.clear();
    TagReader tags = m_file.tags(range);
    Tag tag;
    while (tags.next(tag))
        m_tags.push_back(tag);
    readGroups();
    for (size_t at = 0; at < m_tags.size(); ++at) {
        if (pointsAtGone(m_tags[at]) && !isErased(m_tags[at]))
            drop(at);
    }
}

void PointerRemoval::readGroups()
{
    m_groupHead.assign(m_tags.size(), -1);
    TagSorter sorter;
    int head = -1;
    for (size_t at = 0; at < m_tags.size(); ++at) {
        sorter.take(m_tags[at]);
        if (sorter.group().empty())
            head = -1;
        else if (head < 0 || sorter.opensGroup())
            head = static_cast<int>(at);
        m_groupHead[at] = head;
    }
}

void PointerRemoval::drop(size_t at)
{
    const int code = m_tags[at].code;
    if (m_groupHead[at] >= 0) {
        dropFromGroup(at);
        return;
    }
    const auto* const rule =
        std::find_if(std::begin(kRules), std::end(kRules), [this, code](const Rule& candidate) {
            return candidate.code == code && isType(m_tags, candidate.type);
        });
    if (rule != std::end(kRules)) {
        erase(at);
        if (rule->with == Rule::TagBefore)
            erase(at - 1);
        else if (rule->with == Rule::TagBehind && at + 1 < m_tags.size())
            erase(at + 1);
    } else if (!dropCounted(at)) {
        m_file.journal().replace(m_tags[at].valueRange(), "0");
    }
    updateFlags(code);
}

/// Removes a tag from its group, and with the handle of a viewport also the overrides for it. A
/// group that becomes empty is removed as a whole.
void PointerRemoval::dropFromGroup(size_t at)
{
    constexpr int kViewport = 335;
    erase(at);
    const int head = m_groupHead[at];
    for (size_t i = at + 1; m_tags[at].code == kViewport && i < m_tags.size() &&
                            m_groupHead[i] == head && m_tags[i].code != group::kBrace;
         ++i)
        erase(i);
    size_t end = static_cast<size_t>(head) + 1;
    while (end < m_tags.size() && m_groupHead[end] == head && m_tags[end].code != group::kBrace) {
        if (!isErased(m_tags[end]))
            return;
        ++end;
    }
    if (end == m_tags.size() || m_groupHead[end] != head)
        return;
    erase(static_cast<size_t>(head));
    erase(end);
}

/// Removes the deleted handles from a list that is preceded by its length. Returns false when the
/// tag is not part of such a list.
bool PointerRemoval::dropCounted(size_t at)
{
    const int code = m_tags[at].code;
    size_t first = at;
    while (first > 0 && m_tags[first - 1].code == code)
        --first;
    size_t end = at + 1;
    while (end < m_tags.size() && m_tags[end].code == code)
        ++end;
    const bool isCounted = first > 0 &&
                           (m_tags[first - 1].code == 97 || m_tags[first - 1].code == 90) &&
                           m_tags[first - 1].integer() == static_cast<qint64>(end - first);
    if (!isCounted)
        return false;
    int dropped = 0;
    for (size_t i = first; i < end; ++i) {
        if (!pointsAtGone(m_tags[i]) || isErased(m_tags[i]))
            continue;
        erase(i);
        ++dropped;
    }
    updateCount(first - 1, dropped);
    return true;
}

void PointerRemoval::updateCount(size_t at, int dropped)
{
    const Tag& count = m_tags[at];
    const TagList now = m_file.current(count.range());
    m_file.journal().replace(count.valueRange(), numberInPlace(count, now.integer(0) - dropped));
}

void PointerRemoval::updateFlags(int code)
{
    for (const Flag& flag : kFlags) {
        if (flag.pointer != code || !isType(m_tags, flag.type))
            continue;
        const auto tag = std::find_if(m_tags.begin(), m_tags.end(),
            [&flag](const Tag& candidate) { return candidate.code == flag.code; });
        if (tag != m_tags.end())
            m_file.journal().replace(
                tag->valueRange(), numberInPlace(*tag, (tag->integer() & flag.kept) | flag.set));
    }
}

void PointerRemoval::erase(size_t at)
{
    m_file.journal().replace(m_tags[at].range(), {});
}

bool PointerRemoval::isErased(const Tag& tag) const
{
    return m_file.journal().current(tag.range()).isEmpty();
}

} // namespace drawing
