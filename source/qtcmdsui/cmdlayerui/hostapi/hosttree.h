#pragma once

#include "hostextras.h"
#include "treearray.h"

#include <string>

/// Operations on value trees beyond the typed getters and setters. All functions accept empty
/// handles: reading one gives nothing, and writing to one does nothing.
namespace vnsi::hostapi {

inline VnJsonPtr makeObject()
{
    return ElementValue::createObject(2);
}

inline VnJsonPtr makeArray(int capacity = 0)
{
    return hostextras::createArray(capacity);
}

using treearray::count;
using treearray::item;

/// Appends a node. The node is shared, not copied.
inline void append(const VnJsonPtr& array, const VnJsonPtr& node)
{
    if (array && node)
        hostextras::append(array, node);
}

inline void append(const VnJsonPtr& array, OdInt32 value)
{
    if (array)
        hostextras::appendInt(array, value);
}

inline void append(const VnJsonPtr& array, const OdString& value)
{
    if (array)
        hostextras::appendText(array, value);
}

inline void removeItem(const VnJsonPtr& array, int index)
{
    if (index >= 0 && index < count(array))
        hostextras::removeItem(array, index);
}

/// Element `index` of an array of integers.
inline OdInt32 intAt(const VnJsonPtr& array, int index, OdInt32 fallback = 0)
{
    const VnJsonPtr element = item(array, index);
    return element ? hostextras::intOf(element, fallback) : fallback;
}

/// Element `index` of an array of texts.
inline OdString textAt(const VnJsonPtr& array, int index)
{
    const VnJsonPtr element = item(array, index);
    return element ? hostextras::textOf(element) : OdString();
}

/// Whether two handles refer to the same node. Two empty handles do.
inline bool isSameNode(const VnJsonPtr& a, const VnJsonPtr& b)
{
    return a.get() == b.get();
}

/// A deep copy; empty for an empty handle.
inline VnJsonPtr copyOf(const VnJsonPtr& node)
{
    return node ? hostextras::copyOf(node) : VnJsonPtr();
}

inline void removeKey(IElementValueBase& node, const char* key)
{
    hostextras::removeKey(node, key);
}

inline void removeKey(const VnJsonPtr& node, const char* key)
{
    if (node)
        removeKey(*node, key);
}

/// Puts a sub-tree under a key; an empty handle removes the key.
inline void setTree(IElementValueBase& node, const char* key, const VnJsonPtr& tree)
{
    if (tree)
        node.SetDataJ(key, tree);
    else
        removeKey(node, key);
}

inline std::string jsonOf(const VnJsonPtr& node)
{
    return node ? hostextras::jsonOf(node) : std::string("null");
}

/// Sets several members one after the other. The type of each value selects the setter.
class Members
{
public:
    explicit Members(const VnJsonPtr& node) : m_node(node.get()) {}
    explicit Members(IElementValueBase& node) : m_node(&node) {}

    const Members& set(const char* key, bool value) const
    {
        if (m_node)
            m_node->SetDataB(key, value);
        return *this;
    }
    const Members& set(const char* key, OdInt32 value) const
    {
        if (m_node)
            m_node->SetDataI(key, value);
        return *this;
    }
    const Members& set(const char* key, OdInt64 value) const
    {
        if (m_node)
            m_node->SetDataL(key, value);
        return *this;
    }
    const Members& set(const char* key, const OdString& value) const
    {
        if (m_node)
            m_node->SetDataSW(key, value);
        return *this;
    }
    // Without this overload a literal would become a bool.
    const Members& set(const char* key, const wchar_t* value) const
    {
        return set(key, OdString(value));
    }
    const Members& set(const char* key, const VnJsonPtr& tree) const
    {
        if (m_node)
            setTree(*m_node, key, tree);
        return *this;
    }
    template <class T>
    // Other pointers would become bools.
    const Members& set(const char* key, const T* value) const = delete;

private:
    IElementValueBase* m_node;
};

} // namespace vnsi::hostapi
