#pragma once

#include "OdAnsiString.h"
#include "OdString.h"
#include "vnsidef.h"

#include <type_traits>
#include <utility>

namespace vnsi {

class IElementValueBase;

/// Shared handle on one node of a value tree; may be empty. Copies share the node, so what is
/// written through one is seen through all.
class VNSI_EXPORT VnJsonPtr
{
public:
    VnJsonPtr() = default;
    /// Takes over the maker's reference.
    explicit VnJsonPtr(IElementValueBase* node) : m_node(node) {}
    VnJsonPtr(const VnJsonPtr& other);
    VnJsonPtr(VnJsonPtr&& other) noexcept : m_node(std::exchange(other.m_node, nullptr)) {}
    VnJsonPtr& operator=(VnJsonPtr other) noexcept
    {
        std::swap(m_node, other.m_node);
        return *this;
    }
    ~VnJsonPtr();

    bool isNull() const { return !m_node; }
    explicit operator bool() const { return m_node; }
    IElementValueBase* get() const { return m_node; }
    IElementValueBase* operator->() const { return m_node; }
    IElementValueBase& operator*() const { return *m_node; }

    /// Element `index` of an array, from 0; empty for an empty handle, another kind of node, and an
    /// index outside.
    VnJsonPtr operator()(int index) const;
    /// The element count of an array; 0 for an empty handle and other kinds of nodes.
    int ArrayCount() const;

    friend bool operator==(const VnJsonPtr& a, const VnJsonPtr& b) { return a.m_node == b.m_node; }
    friend bool operator!=(const VnJsonPtr& a, const VnJsonPtr& b) { return a.m_node != b.m_node; }

private:
    IElementValueBase* m_node = nullptr;
};

/// One node of a JSON-like tree: an object, an array or a scalar.
///
/// Keys are ASCII; "a/b" reaches member "b" of the object under "a", and setters make the objects
/// on the way. A getter gives its default where the key is missing or holds another type, of which
/// the two integer types are two. A setter replaces, whatever was there; on a node that is no
/// object it does nothing.
class VNSI_EXPORT IElementValueBase
{
public:
    enum class Kind { Null, Bool, Int, Long, Real, Text, Array, Object };

    virtual void addRef() = 0;
    virtual void release() = 0;
    virtual Kind kind() const = 0;

    virtual bool GetDataB(const char* key, bool fallback = false) const = 0;
    virtual OdInt32 GetDataI(const char* key, OdInt32 fallback = 0) const = 0;
    virtual OdInt64 GetDataL(const char* key, OdInt64 fallback = 0) const = 0;
    virtual OdString GetDataSW(const char* key, const OdString& fallback = OdString()) const = 0;
    virtual OdAnsiString GetDataS(
        const char* key, const OdAnsiString& fallback = OdAnsiString()) const = 0;
    /// The object or array under `key`; empty where there is none.
    virtual VnJsonPtr GetDataJ(const char* key) const = 0;

    virtual void SetDataB(const char* key, bool value) = 0;
    virtual void SetDataI(const char* key, OdInt32 value) = 0;
    virtual void SetDataL(const char* key, OdInt64 value) = 0;
    virtual void SetDataSW(const char* key, const OdString& value) = 0;
    virtual void SetDataS(const char* key, const OdAnsiString& utf8) = 0;
    /// Hangs a sub-tree under `key`; the node is shared, not copied. An empty handle, and a node
    /// that would become its own descendant, remove the key.
    virtual void SetDataJ(const char* key, const VnJsonPtr& value) = 0;

    // Setters that can be chained: each replaces the value under `key` and gives back the node.
    IElementValueBase& set(const char* key, bool value);
    IElementValueBase& set(const char* key, OdInt32 value);
    IElementValueBase& set(const char* key, const OdString& value);
    IElementValueBase& set(const char* key, const wchar_t* value); // Else a literal is a bool.
    template <class T>
    std::enable_if_t<!std::is_convertible_v<const T&, OdString>, IElementValueBase&> set(
        const char* key, const T& value) = delete;

    virtual bool HasKey(const char* key) const = 0;
    virtual void RemoveKey(const char* key) = 0;

    /// Number of elements of an array; 0 for other kinds.
    virtual int ArrayCount() const = 0;
    /// Element `index` of an array; a scalar element comes as a node of its own that reads alone.
    virtual VnJsonPtr operator()(int index) const = 0;
    virtual void Append(const VnJsonPtr& value) = 0;
    virtual void AppendI(OdInt32 value) = 0;
    virtual void AppendSW(const OdString& value) = 0;
    /// Inserts before element `index`; at the end when it is not below the count.
    virtual void Insert(int index, const VnJsonPtr& value) = 0;
    virtual void Remove(int index) = 0;
    virtual void Clear() = 0;

    // The value of a scalar node, with the getters' rules.
    virtual bool asB(bool fallback = false) const = 0;
    virtual OdInt32 asI(OdInt32 fallback = 0) const = 0;
    virtual OdString asSW(const OdString& fallback = OdString()) const = 0;

protected:
    virtual ~IElementValueBase() = default;
};

/// Makes nodes.
class VNSI_EXPORT ElementValue
{
public:
    /// An empty object with room for `capacity` members.
    static VnJsonPtr createObject(int capacity);
    /// An empty array with room for `capacity` elements.
    static VnJsonPtr createArray(int capacity = 0);
    /// A deep copy that shares nothing; empty for an empty handle.
    static VnJsonPtr clone(const VnJsonPtr& node);
    /// The tree of a JSON text in UTF-8; empty when it is no JSON object or array.
    static VnJsonPtr fromJson(const OdAnsiString& json);
    /// The tree as one line of JSON in UTF-8; "null" for an empty handle. Integers beyond 2^53 are
    /// rounded, and what is nested deeper than 1024 containers is left out as null.
    static OdAnsiString toJson(const VnJsonPtr& node);
};

inline IElementValueBase& IElementValueBase::set(const char* key, bool value)
{
    SetDataB(key, value);
    return *this;
}

inline IElementValueBase& IElementValueBase::set(const char* key, OdInt32 value)
{
    SetDataI(key, value);
    return *this;
}

inline IElementValueBase& IElementValueBase::set(const char* key, const OdString& value)
{
    SetDataSW(key, value);
    return *this;
}

inline IElementValueBase& IElementValueBase::set(const char* key, const wchar_t* value)
{
    return set(key, OdString(value));
}

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
