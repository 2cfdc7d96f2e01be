#include "valueobject.h"

#include <algorithm>

namespace vnsi {

namespace {

constexpr int kMostReserved = 4096;
/// With more members than this, an index is faster than a linear search.
constexpr std::size_t kFewMembers = 32;

/// The path, or an empty text when one of its parts is empty.
std::string_view checkedPath(const char* path)
{
    const std::string_view text(path ? path : "");
    const bool isBroken = text.empty() || text.front() == '/' || text.back() == '/' ||
                          text.find("//") != std::string_view::npos;
    return isBroken ? std::string_view() : text;
}

std::string_view lastPart(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

/// Removes the first part from a path with several parts; returns nothing when only one is left.
std::string_view takePart(std::string_view& path)
{
    const std::size_t slash = path.find('/');
    if (slash == std::string_view::npos)
        return {};
    const std::string_view part = path.substr(0, slash);
    path.remove_prefix(slash + 1);
    return part;
}

ValueObject* asObject(ValueNode* node)
{
    const bool isObject = node && node->kind() == ValueNode::Kind::Object;
    return isObject ? static_cast<ValueObject*>(node) : nullptr;
}

} // namespace

ValueObject::ValueObject(int capacity)
{
    m_members.reserve(static_cast<std::size_t>(std::clamp(capacity, 0, kMostReserved)));
}

void ValueObject::collectChildren(std::vector<ValueNode*>& children) const
{
    for (const Member& each : m_members) {
        if (ValueNode* const node = readNode(each.value))
            children.push_back(node);
    }
}

void ValueObject::SetDataJ(const char* path, const VnJsonPtr& value)
{
    const std::string_view checked = checkedPath(path);
    if (checked.empty())
        return;
    const auto* const node = static_cast<const ValueNode*>(value.get());
    if (!node) {
        RemoveKey(path);
        return;
    }
    ValueObject& holder = makeHolderOf(checked);
    if (node->mayHangIn(holder))
        holder.put(lastPart(checked), toValue(value));
    else if (const Member* old = holder.member(lastPart(checked)))
        holder.removeMember(*old);
}

void ValueObject::RemoveKey(const char* path)
{
    const std::string_view checked = checkedPath(path);
    auto* const holder = const_cast<ValueObject*>(holderOf(checked));
    const Member* const old = holder ? holder->member(lastPart(checked)) : nullptr;
    if (old)
        holder->removeMember(*old);
}

void ValueObject::Clear()
{
    m_index.reset();
    m_removed = 0;
    m_members.clear();
}

void ValueObject::put(std::string_view key, Value value)
{
    if (const Member* old = member(key)) {
        const_cast<Member*>(old)->value = std::move(value);
        return;
    }
    m_members.push_back({internKey(key), std::move(value)});
    if (m_index)
        m_index->emplace(m_members.back().key->text, m_members.size() - 1);
    else if (m_members.size() > kFewMembers)
        rebuildIndex();
}

const Value* ValueObject::find(const char* path) const
{
    const std::string_view checked = checkedPath(path);
    const ValueObject* const holder = holderOf(checked);
    const Member* const found = holder ? holder->member(lastPart(checked)) : nullptr;
    return found ? &found->value : nullptr;
}

void ValueObject::store(const char* path, Value value)
{
    const std::string_view checked = checkedPath(path);
    if (!checked.empty())
        makeHolderOf(checked).put(lastPart(checked), std::move(value));
}

const ValueObject::Member* ValueObject::member(std::string_view key) const
{
    if (m_index) {
        const auto found = m_index->find(key);
        return found == m_index->end() ? nullptr : &m_members[found->second];
    }
    const auto found = std::find_if(m_members.begin(), m_members.end(),
        [key](const Member& each) { return each.key->text == key; });
    return found == m_members.end() ? nullptr : &*found;
}

void ValueObject::removeMember(const Member& gone)
{
    const auto position = m_members.begin() + (&gone - m_members.data());
    if (!m_index) {
        m_members.erase(position);
        return;
    }
    m_index->erase(gone.key->text);
    *position = {nullptr, {}};
    // Gaps are closed only when they are half of all entries, so removing many members takes linear
    // time.
    if (++m_removed * 2 > m_members.size())
        rebuildIndex();
}

void ValueObject::rebuildIndex()
{
    m_members.erase(std::remove_if(m_members.begin(), m_members.end(),
                        [](const Member& each) { return !each.key; }),
        m_members.end());
    m_removed = 0;
    m_index.reset();
    if (m_members.size() <= kFewMembers)
        return;
    m_index = std::make_unique<Index>(m_members.size() * 2);
    for (std::size_t i = 0; i < m_members.size(); ++i)
        m_index->emplace(m_members[i].key->text, i);
}

const ValueObject* ValueObject::holderOf(std::string_view path) const
{
    const ValueObject* holder = path.empty() ? nullptr : this;
    for (std::string_view part = takePart(path); holder && !part.empty(); part = takePart(path)) {
        const Member* const found = holder->member(part);
        holder = found ? asObject(readNode(found->value)) : nullptr;
    }
    return holder;
}

ValueObject& ValueObject::makeHolderOf(std::string_view path)
{
    ValueObject* holder = this;
    for (std::string_view part = takePart(path); !part.empty(); part = takePart(path))
        holder = &holder->makeObject(part);
    return *holder;
}

ValueObject& ValueObject::makeObject(std::string_view key)
{
    const Member* const found = member(key);
    if (ValueObject* const object = found ? asObject(readNode(found->value)) : nullptr)
        return *object;
    auto* const made = new ValueObject(0);
    const VnJsonPtr keep(made);
    put(key, Branch(*made));
    return *made;
}

} // namespace vnsi
