#include "valuenode.h"

#include <unordered_set>

namespace vnsi {

void ValueNode::release()
{
    if (m_references.fetch_sub(1, std::memory_order_acq_rel) != 1)
        return;
    // Children are queued instead of being deleted recursively, so that deep trees do not exhaust
    // the stack.
    static thread_local ValueNode* doomed = nullptr;
    static thread_local bool isDeleting = false;
    m_nextDoomed = doomed;
    doomed = this;
    if (isDeleting)
        return;
    isDeleting = true;
    while (doomed) {
        ValueNode* const node = doomed;
        doomed = node->m_nextDoomed;
        delete node;
    }
    isDeleting = false;
}

void ValueNode::collectChildren(std::vector<ValueNode*>&) const {}

bool ValueNode::mayHangIn(const ValueNode& parent) const
{
    if (this == &parent)
        return false;
    // A node without a parent is nobody's descendant, so building a tree from its leaves costs
    // nothing.
    if (parent.m_hanging.load(std::memory_order_relaxed) == 0)
        return true;
    std::vector<ValueNode*> open;
    collectChildren(open);
    std::unordered_set<const ValueNode*> seen;
    while (!open.empty()) {
        ValueNode* const node = open.back();
        open.pop_back();
        if (node == &parent)
            return false;
        if (seen.insert(node).second)
            node->collectChildren(open);
    }
    return true;
}

bool ValueNode::GetDataB(const char* key, bool fallback) const
{
    const Value* value = find(key);
    return value ? readBool(*value, fallback) : fallback;
}

OdInt32 ValueNode::GetDataI(const char* key, OdInt32 fallback) const
{
    const Value* value = find(key);
    return value ? readInt(*value, fallback) : fallback;
}

OdInt64 ValueNode::GetDataL(const char* key, OdInt64 fallback) const
{
    const Value* value = find(key);
    return value ? readLong(*value, fallback) : fallback;
}

OdString ValueNode::GetDataSW(const char* key, const OdString& fallback) const
{
    const Value* value = find(key);
    return value ? readText(*value, fallback) : fallback;
}

VnJsonPtr ValueNode::GetDataJ(const char* key) const
{
    const Value* value = find(key);
    return value && readNode(*value) ? toHandle(*value) : VnJsonPtr();
}

void ValueNode::SetDataB(const char* key, bool value)
{
    store(key, value);
}

void ValueNode::SetDataI(const char* key, OdInt32 value)
{
    store(key, value);
}

void ValueNode::SetDataL(const char* key, OdInt64 value)
{
    store(key, value);
}

void ValueNode::SetDataSW(const char* key, const OdString& value)
{
    store(key, value);
}

void ValueNode::SetDataS(const char* key, const OdAnsiString& utf8)
{
    store(key, Utf8StringToOdString(utf8));
}

void ValueNode::SetDataJ(const char*, const VnJsonPtr&) {}

bool ValueNode::HasKey(const char* key) const
{
    return find(key);
}

void ValueNode::RemoveKey(const char*) {}

int ValueNode::ArrayCount() const
{
    return 0;
}

VnJsonPtr ValueNode::operator()(int) const
{
    return {};
}

void ValueNode::Append(const VnJsonPtr&) {}

void ValueNode::AppendI(OdInt32) {}

void ValueNode::AppendSW(const OdString&) {}

void ValueNode::Insert(int, const VnJsonPtr&) {}

void ValueNode::Remove(int) {}

void ValueNode::Clear() {}

const Value* ValueNode::find(const char*) const
{
    return nullptr;
}

// Nodes that hold values take them over. NOLINTNEXTLINE(performance-unnecessary-value-param)
void ValueNode::store(const char*, Value) {}

} // namespace vnsi
