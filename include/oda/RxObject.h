#pragma once

#include "OdAlloc.h"
#include "OdString.h"
#include "SmartPtr.h"

class OdRxObject;
using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

/// Describes one run-time class. There is exactly one description per class while the process runs.
class ODRX_EXPORT OdRxClass
{
public:
    OdRxClass(const wchar_t* name, const OdRxClass* parent) : m_name(name), m_parent(parent) {}
    const OdString& name() const { return m_name; }
    const OdRxClass* myParent() const { return m_parent; }
    bool isDerivedFrom(const OdRxClass* other) const;

private:
    OdString m_name;
    const OdRxClass* m_parent;
};

/// Base of every object that libraries hand to each other. It is reference-counted and knows its
/// class.
class ODRX_EXPORT OdRxObject
{
public:
    static const OdRxClass* desc();
    /// Returns `object` as this class's smart pointer, or null when it is not of this class.
    static OdRxObjectPtr cast(const OdRxObject* object);

    OdRxObject() = default;
    OdRxObject(const OdRxObject&) = delete;
    OdRxObject& operator=(const OdRxObject&) = delete;
    virtual ~OdRxObject();

    /// Returns this object when it is of class `wanted`, otherwise null. The caller owns one
    /// reference to the returned object.
    virtual OdRxObject* queryX(const OdRxClass* wanted) const;
    /// Returns the extension object of class `wanted` that is attached to this object's class. This
    /// implementation knows none and returns null.
    virtual OdRxObject* x(const OdRxClass* wanted) const;
    virtual const OdRxClass* isA() const;
    virtual void addRef() = 0;
    virtual void release() = 0;
    virtual long numRefs() const;
    /// Returns a copy, or null when the class cannot be copied.
    virtual OdRxObjectPtr clone() const;
    /// Takes over the contents of `source`. Throws `OdError_NotThatKindOfClass` when the class
    /// cannot be assigned.
    virtual void copyFrom(const OdRxObject* source);
    /// Returns 0 when `other` is this same object; otherwise -1 or 1 by comparing addresses.
    virtual int comparedTo(const OdRxObject* other) const;
    virtual bool isEqualTo(const OdRxObject* other) const;

    /// Allocates through `odrxAlloc`. While no memory is left, it calls the installed new-handler
    /// and tries again; without a handler it throws the usual allocation failure.
    static void* operator new(std::size_t size);
    static void operator delete(void* memory) { odrxFree(memory); }
};

/// Declares the members by which a run-time class is recognised. `cast` returns the object as this
/// class, or null when it is not of this class.
#define ODRX_DECLARE_MEMBERS(ClassName)                                                            \
public:                                                                                            \
    static const OdRxClass* desc();                                                                \
    static OdSmartPtr<ClassName> cast(const OdRxObject* object)                                    \
    {                                                                                              \
        OdRxObject* const found = object ? object->queryX(desc()) : nullptr;                       \
        return {static_cast<ClassName*>(found), kOdRxObjAttach};                                   \
    }                                                                                              \
    const OdRxClass* isA() const override;

/// Defines the members that `ODRX_DECLARE_MEMBERS` declares. Use it in one source file only.
#define ODRX_DEFINE_MEMBERS(ClassName, ParentName, wideName)                                       \
    const OdRxClass* ClassName::desc()                                                             \
    {                                                                                              \
        static const OdRxClass description(wideName, ParentName::desc());                          \
        return &description;                                                                       \
    }                                                                                              \
    const OdRxClass* ClassName::isA() const                                                        \
    {                                                                                              \
        return desc();                                                                             \
    }
