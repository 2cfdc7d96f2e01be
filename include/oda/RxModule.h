#pragma once

#include "RxObject.h"

/// A library that is loaded at run time.
class ODRX_EXPORT OdRxModule : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(OdRxModule)
public:
    /// The operating system's handle of the loaded library.
    virtual void* sysData() = 0;
    /// Destroys the module object. It is called once, after `uninitApp` and before the library is
    /// unloaded.
    virtual void deleteModule() = 0;
    /// Called after the library was loaded. The module registers its services here.
    virtual void initApp();
    /// Called before the library is unloaded. The module removes what it registered in `initApp`.
    virtual void uninitApp();
    virtual OdString moduleName() const = 0;
};

using OdRxModulePtr = OdSmartPtr<OdRxModule>;
