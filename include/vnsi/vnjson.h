#pragma once

#include "OdAnsiString.h"
#include "OdString.h"
#include "vnsidef.h"

#include <utility>

namespace vnsi {

class IElementValueBase;

/// A shared handle to one node of a value tree, or an empty handle. Copies share the node, so a
/// change made through one of them is visible through all.
class VNSI_EXPORT VnJsonPtr
{
public:
    VnJsonPtr() = default;
    /// Takes over the reference that the maker of the node holds.
    explicit VnJsonPtr(IElementValueBase* node) : m_node(node) {}
    VnJsonPtr(const VnJsonPtr& other);
    VnJsonPtr(VnJsonPtr&& other) noexcept : m_node(std::exchange(other.m_node, nullptr)) {}
    VnJsonPtr& operator=(VnJsonPtr other) noexcept
    {
        std::swap(m_node, other.m_node);
        return *this;
    }
    ~VnJsonPtr();

    explicit operator bool() const { return m_node; }
    IElementValueBase* get() const { return m_node; }
    IElementValueBase* operator->() const { return m_node; }
    IElementValueBase& operator*() const { return *m_node; }

    /// Element `index` of an array, counted from 0. Empty for an empty handle, for a node that is
    /// no array, and for an index outside the array.
    VnJsonPtr operator()(int index) const;
    /// The number of elements of an array; 0 for an empty handle and for other kinds of nodes.
    int ArrayCount() const;

    friend bool operator==(const VnJsonPtr& a, const VnJsonPtr& b) { return a.m_node == b.m_node; }
    friend bool operator!=(const VnJsonPtr& a, const VnJsonPtr& b) { return a.m_node != b.m_node; }

private:
    IElementValueBase* m_node = nullptr;
};

/// One node of a JSON-like tree: an object, an array or a scalar.
///
/// Keys are ASCII. The key "a/b" addresses member "b" of the object under "a"; setters create the
/// objects on that path. A getter returns its default when the key is missing or holds another
/// type; the two integer types count as different types. A setter replaces any earlier value of any
/// type; on a node that is no object it does nothing.
class VNSI_EXPORT IElementValueBase
{
public:
    virtual void addRef() = 0;
    virtual void release() = 0;

    virtual bool GetDataB(const char* key, bool fallback = false) const = 0;
    virtual OdInt32 GetDataI(const char* key, OdInt32 fallback = 0) const = 0;
    virtual OdInt64 GetDataL(const char* key, OdInt64 fallback = 0) const = 0;
    virtual OdString GetDataSW(const char* key, const OdString& fallback = OdString()) const = 0;
    /// The object or array under `key`; empty when there is none.
    virtual VnJsonPtr GetDataJ(const char* key) const = 0;

    virtual void SetDataB(const char* key, bool value) = 0;
    virtual void SetDataI(const char* key, OdInt32 value) = 0;
    virtual void SetDataL(const char* key, OdInt64 value) = 0;
    virtual void SetDataSW(const char* key, const OdString& value) = 0;
    virtual void SetDataS(const char* key, const OdAnsiString& utf8) = 0;
    /// Puts a sub-tree under `key`. The node is shared, not copied. The key is removed when `value`
    /// is an empty handle or when the node would become its own descendant.
    virtual void SetDataJ(const char* key, const VnJsonPtr& value) = 0;

    /// The number of elements of an array; 0 for other kinds of nodes.
    virtual int ArrayCount() const = 0;
    /// Element `index` of an array. A scalar element is returned as a node of its own, which can
    /// only be read.
    virtual VnJsonPtr operator()(int index) const = 0;

protected:
    virtual ~IElementValueBase() = default;
};

/// Creates nodes.
class VNSI_EXPORT ElementValue
{
public:
    /// Creates an empty object with room for `capacity` members.
    static VnJsonPtr createObject(int capacity);
};

inline VnJsonPtr::VnJsonPtr(const VnJsonPtr& other) : m_node(other.m_node)
{
    if (m_node)
        m_node->addRef();
}

inline VnJsonPtr::~VnJsonPtr()
{
    if (m_node)
        m_node->release();
}

inline VnJsonPtr VnJsonPtr::operator()(int index) const
{
    return m_node ? (*m_node)(index) : VnJsonPtr();
}

inline int VnJsonPtr::ArrayCount() const
{
    return m_node ? m_node->ArrayCount() : 0;
}

} // namespace vnsi
