#pragma once

#include "RxObject.h"

/// A library that is loaded at run time.
class ODRX_EXPORT OdRxModule : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(OdRxModule)
public:
    /// The system's handle of the loaded library.
    virtual void* sysData() = 0;
    /// Ends the module object; called once, after `uninitApp`, before the library is unloaded.
    virtual void deleteModule() = 0;
    /// Called after loading: the module registers what it offers.
    virtual void initApp();
    /// Called before unloading: the module takes back what it registered.
    virtual void uninitApp();
    virtual OdString moduleName() const = 0;
};

using OdRxModulePtr = OdSmartPtr<OdRxModule>;
