#pragma once

#include "RxUnixModule.h"

/// The module: registers the dialog service when it is loaded and takes it back when it is
/// unloaded.
class VnQtCmdsLayerUIModule : public OdRxModule
{
public:
    void initApp() override;
    void uninitApp() override;
};
