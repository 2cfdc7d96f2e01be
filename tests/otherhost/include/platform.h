#pragma once

// This host's platform. It offers only what the interface defines, so a module that needs more does
// not compile here.

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#pragma GCC visibility push(default)

using OdInt16 = std::int16_t;
using OdUInt8 = std::uint8_t;
using OdInt32 = std::int32_t;
using OdUInt32 = std::uint32_t;
using OdInt64 = std::int64_t;
using ODCOLORREF = std::uint32_t;

/// A failed assertion ends the process.
[[noreturn]] inline void OdAssert(const char*, const char*, int)
{
    std::abort();
}

class OdString
{
public:
    OdString() = default;
    OdString(const wchar_t* text) : m_text(text ? text : L"") {}
    const wchar_t* c_str() const { return m_text.c_str(); }
    bool isEmpty() const { return m_text.empty(); }
    friend bool operator==(const OdString& a, const OdString& b) { return a.m_text == b.m_text; }
    friend bool operator!=(const OdString& a, const OdString& b) { return a.m_text != b.m_text; }

private:
    std::wstring m_text;
};

class OdAnsiString
{
public:
    OdAnsiString() = default;
    OdAnsiString(const char* text) : m_text(text ? text : "") {}
    const char* c_str() const { return m_text.c_str(); }
    bool isEmpty() const { return m_text.empty(); }

private:
    std::string m_text;
};

OdAnsiString OdStringToUtf8String(const OdString& text);

class OdError : public std::exception
{
};

template <class T>
class OdArray
{
};

enum OdRxObjMod { kOdRxObjAttach };

template <class T>
class OdSmartPtr
{
public:
    OdSmartPtr() = default;
    OdSmartPtr(std::nullptr_t) {}
    OdSmartPtr(T* object, OdRxObjMod) : m_object(object) {}
    OdSmartPtr(T* object) : m_object(object)
    {
        if (object)
            object->addRef();
    }
    OdSmartPtr(const OdSmartPtr& other) : OdSmartPtr(other.m_object) {}
    template <class U>
    OdSmartPtr(const OdSmartPtr<U>& derived) : OdSmartPtr(derived.get())
    {
    }
    ~OdSmartPtr()
    {
        if (m_object)
            m_object->release();
    }
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

private:
    T* m_object = nullptr;
};

/// A run-time class, which is identified by its name because each library has its own copy.
struct OdRxClass
{
    std::string name;
    const OdRxClass* parent;
};

class OdRxObject
{
public:
    OdRxObject() = default;
    OdRxObject(const OdRxObject&) = delete;
    OdRxObject& operator=(const OdRxObject&) = delete;
    virtual ~OdRxObject() = default;

    static const OdRxClass* desc()
    {
        static const OdRxClass description{"OdRxObject", nullptr};
        return &description;
    }
    virtual OdRxObject* queryX(const OdRxClass* wanted) const
    {
        const OdRxClass* one = isA();
        while (one && one->name != wanted->name)
            one = one->parent;
        if (!one)
            return nullptr;
        auto* const self = const_cast<OdRxObject*>(this);
        self->addRef();
        return self;
    }
    virtual const OdRxClass* isA() const { return desc(); }
    virtual void addRef() = 0;
    virtual void release() = 0;
    virtual long numRefs() const { return 1; }
};

using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

#define OTHER_DECLARE_CLASS(ClassName, ParentName)                                                 \
public:                                                                                            \
    static const OdRxClass* desc()                                                                 \
    {                                                                                              \
        static const OdRxClass description{#ClassName, ParentName::desc()};                        \
        return &description;                                                                       \
    }                                                                                              \
    static OdSmartPtr<ClassName> cast(const OdRxObject* object)                                    \
    {                                                                                              \
        OdRxObject* const found = object ? object->queryX(desc()) : nullptr;                       \
        return {static_cast<ClassName*>(found), kOdRxObjAttach};                                   \
    }                                                                                              \
    const OdRxClass* isA() const override                                                          \
    {                                                                                              \
        return desc();                                                                             \
    }

template <class T, class TInterface = T>
class OdRxObjectImpl : public T
{
public:
    using T::T;

    template <class... Args>
    static OdSmartPtr<TInterface> createObject(Args&&... args)
    {
        return {new OdRxObjectImpl(std::forward<Args>(args)...), kOdRxObjAttach};
    }
    void addRef() override { ++m_count; }
    void release() override
    {
        if (--m_count == 0)
            delete this;
    }
    long numRefs() const override { return m_count; }

private:
    std::atomic<int> m_count{1};
};

class OdRxModule : public OdRxObject
{
    OTHER_DECLARE_CLASS(OdRxModule, OdRxObject)
    virtual void initApp() = 0;
    virtual void uninitApp() = 0;
    virtual OdString moduleName() const = 0;
};

template <class T, class TInterface = OdRxModule>
class OdRxUnixModule : public OdRxObjectImpl<T, TInterface>
{
public:
    OdRxUnixModule(void* library, const OdString& name) : m_library(library), m_name(name) {}
    OdString moduleName() const override { return m_name; }

private:
    void* m_library;
    OdString m_name;
};

#define ODRX_DEFINE_DYNAMIC_MODULE(ModuleClass)                                                    \
    extern "C" __attribute__((visibility("default"))) OdRxModule* odrxCreateModuleObject(          \
        void* library, const OdString& name)                                                       \
    {                                                                                              \
        static OdRxModule* const module =                                                          \
            new OdRxUnixModule<ModuleClass, ModuleClass>(library, name);                           \
        return module;                                                                             \
    }                                                                                              \
    extern "C" __attribute__((visibility("default"))) void odrxGetAPIVersion(                      \
        int& major, int& minor, int& majorBuild, int& minorBuild)                                  \
    {                                                                                              \
        major = 21;                                                                                \
        minor = 12;                                                                                \
        majorBuild = minorBuild = 0;                                                               \
    }

class OdCmEntityColor
{
public:
    enum ColorMethod { kByLayer = 192, kByBlock = 193, kByColor = 194, kByACI = 195 };

    OdCmEntityColor() = default;
    OdCmEntityColor(OdUInt8 red, OdUInt8 green, OdUInt8 blue) { setRGB(red, green, blue); }
    ColorMethod colorMethod() const { return m_method; }
    void setColorMethod(ColorMethod method) { m_method = method; }
    OdInt16 colorIndex() const { return m_index; }
    void setColorIndex(OdInt16 index) { m_index = index; }
    void setRGB(OdUInt8 red, OdUInt8 green, OdUInt8 blue)
    {
        m_method = kByColor;
        m_parts[0] = red;
        m_parts[1] = green;
        m_parts[2] = blue;
    }
    OdUInt8 red() const { return m_parts[0]; }
    OdUInt8 green() const { return m_parts[1]; }
    OdUInt8 blue() const { return m_parts[2]; }

private:
    ColorMethod m_method = kByColor;
    OdInt16 m_index = 0;
    OdUInt8 m_parts[3] = {};
};

using OdCmColor = OdCmEntityColor;

class OdDbObjectId
{
};

#pragma GCC visibility pop
