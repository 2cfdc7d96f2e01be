#pragma once

#include "OdAlloc.h"
#include "OdString.h"
#include "SmartPtr.h"

class OdRxObject;
using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

/// Describes one class of run-time objects; one per class for the life of the process.
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

/// Base of everything that is handed across libraries: counted by reference and able to tell its
/// class.
class ODRX_EXPORT OdRxObject
{
public:
    static const OdRxClass* desc();
    /// The object as its own smart pointer type, or null.
    static OdRxObjectPtr cast(const OdRxObject* object);

    OdRxObject() = default;
    OdRxObject(const OdRxObject&) = delete;
    OdRxObject& operator=(const OdRxObject&) = delete;
    virtual ~OdRxObject();

    /// This object, with a reference for the caller, when it is of class `wanted`; otherwise null.
    virtual OdRxObject* queryX(const OdRxClass* wanted) const;
    /// The extension object of class `wanted` attached to this one's class; none unless overridden.
    virtual OdRxObject* x(const OdRxClass* wanted) const;
    virtual const OdRxClass* isA() const;
    virtual void addRef() = 0;
    virtual void release() = 0;
    virtual long numRefs() const;
    /// A copy, or null where the class cannot be copied.
    virtual OdRxObjectPtr clone() const;
    /// Throws `OdError_NotThatKindOfClass` where the class cannot be assigned.
    virtual void copyFrom(const OdRxObject* source);
    /// 0 for the same object, otherwise -1 or 1 by address.
    virtual int comparedTo(const OdRxObject* other) const;
    virtual bool isEqualTo(const OdRxObject* other) const;

    /// Of `odrxAlloc`: while there is no memory the installed new-handler is called and the
    /// allocation tried again; without a handler the allocation failure is raised.
    static void* operator new(std::size_t size);
    static void operator delete(void* memory) { odrxFree(memory); }
};

/// Declares what a run-time class needs to be recognised: `cast` gives the object as one of the
/// class, or null.
#define ODRX_DECLARE_MEMBERS(ClassName)                                                            \
public:                                                                                            \
    static const OdRxClass* desc();                                                                \
    static OdSmartPtr<ClassName> cast(const OdRxObject* object)                                    \
    {                                                                                              \
        OdRxObject* const found = object ? object->queryX(desc()) : nullptr;                       \
        return {static_cast<ClassName*>(found), kOdRxObjAttach};                                   \
    }                                                                                              \
    const OdRxClass* isA() const override;

/// Defines it, in one source file.
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
