#pragma once

#include "RxModule.h"
#include "RxObjectImpl.h"

/// Binds a module class to the library that it was loaded from.
template <class T, class TInterface = OdRxModule>
class OdRxUnixModule : public OdRxObjectImpl<T, TInterface>
{
public:
    /// Returns the library's only module object and makes it at the first call.
    static OdRxModule* create(void* systemHandle, const OdString& name)
    {
        if (!s_module)
            s_module = new OdRxUnixModule(systemHandle, name);
        return s_module;
    }

    void* sysData() override { return m_systemHandle; }
    OdString moduleName() const override { return m_name; }
    void deleteModule() override
    {
        s_module = nullptr;
        this->release();
    }

private:
    OdRxUnixModule(void* systemHandle, const OdString& name)
        : m_systemHandle(systemHandle),
          m_name(name)
    {
    }

    static inline OdRxUnixModule* s_module = nullptr;
    void* m_systemHandle;
    OdString m_name;
};

/// Defines the two entry points that a module library of this release must export.
#define ODRX_DEFINE_DYNAMIC_MODULE(ModuleClass)                                                    \
    extern "C" ODRX_EXPORT OdRxModule* odrxCreateModuleObject(                                     \
        void* systemHandle, const OdString& name)                                                  \
    {                                                                                              \
        return OdRxUnixModule<ModuleClass, ModuleClass>::create(systemHandle, name);               \
    }                                                                                              \
    extern "C" ODRX_EXPORT void odrxGetAPIVersion(                                                 \
        int& major, int& minor, int& majorBuild, int& minorBuild)                                  \
    {                                                                                              \
        major = 21;                                                                                \
        minor = 12;                                                                                \
        majorBuild = 0;                                                                            \
        minorBuild = 0;                                                                            \
    }
