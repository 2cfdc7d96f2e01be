#pragma once

#include "RxUnixModule.h"

/// The module. It registers the dialog service when it is loaded and removes it when it is
/// unloaded.
class VnQtCmdsLayerUIModule : public OdRxModule
{
public:
    void initApp() override;
    void uninitApp() override;
};
