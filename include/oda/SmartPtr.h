#pragma once

#include "OdError.h"

#include <utility>

enum OdRxObjMod {
    kOdRxObjAttach ///< The pointer takes over a reference that its maker holds.
};

/// A smart pointer that holds one reference to a run-time object.
template <class T>
class OdSmartPtr
{
public:
    OdSmartPtr() = default;
    OdSmartPtr(std::nullptr_t) {}
    OdSmartPtr(T* object) : m_object(object) { addRef(); }
    OdSmartPtr(T* object, OdRxObjMod) : m_object(object) {}
    OdSmartPtr(const OdSmartPtr& other) : m_object(other.m_object) { addRef(); }
    OdSmartPtr(OdSmartPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    template <class U>
    OdSmartPtr(const OdSmartPtr<U>& derived) : m_object(derived.get())
    {
        addRef();
    }
    ~OdSmartPtr() { release(); }

    OdSmartPtr& operator=(OdSmartPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    bool isNull() const { return !m_object; }
    explicit operator bool() const { return m_object; }
    /// Gives up the object without releasing it; the reference passes to the caller.
    T* detach() { return std::exchange(m_object, nullptr); }

private:
    void addRef()
    {
        if (m_object)
            m_object->addRef();
    }
    void release()
    {
        if (m_object)
            m_object->release();
    }

    T* m_object = nullptr;
};

template <class T>
bool operator==(const OdSmartPtr<T>& a, const OdSmartPtr<T>& b)
{
    return a.get() == b.get();
}
